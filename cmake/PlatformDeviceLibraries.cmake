# The device's own style and keyboard libraries in place of the stand-ins, from PLATFORM_DEVICE_PREFIX.
# This file is installed too, so that the package of a library built this way finds them again.

function(platform_import_device_library name header)
    if(TARGET platform::${name})
        return()
    endif()
    find_library(PLATFORM_DEVICE_${name}_LIBRARY
        NAMES libplatform_${name}${PLATFORM_QT_SUFFIX}.so.1.2 platform_${name}${PLATFORM_QT_SUFFIX}
        HINTS "${PLATFORM_DEVICE_PREFIX}/lib" "${PLATFORM_DEVICE_PREFIX}"
        PATH_SUFFIXES "${CMAKE_LIBRARY_ARCHITECTURE}"
        REQUIRED)
    find_path(PLATFORM_DEVICE_${name}_INCLUDE_DIR
        NAMES "${header}"
        HINTS "${PLATFORM_DEVICE_PREFIX}/include"
            "${PLATFORM_DEVICE_PREFIX}/include/platform_widgets${PLATFORM_QT_SUFFIX}"
        REQUIRED)
    add_library(platform::${name} SHARED IMPORTED GLOBAL)
    set_target_properties(platform::${name} PROPERTIES
        IMPORTED_LOCATION "${PLATFORM_DEVICE_${name}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${PLATFORM_DEVICE_${name}_INCLUDE_DIR}")
endfunction()

platform_import_device_library(style platform/ui/style/StyleManager.h)
platform_import_device_library(keyboard ui/keyboard/IKeypad.h)
