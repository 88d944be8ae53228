include(GenerateExportHeader)

set(PLATFORM_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/${PLATFORM_PACKAGE_NAME})

# platform_add_library(NAME COMPONENT EXPORTED...): a shared library whose file name and soname are
# libplatform_NAME.so.1.2 (with Qt 6 libplatform_NAME6.so.1.2) and which leaves no symbol undefined. It exports what carries its export
# macro, as far as that belongs to the namespaces and classes EXPORTED (patterns of names).
# It is installed in the given component and exported as platform::NAME.
function(platform_add_library name component)
    set(target platform_${name})
    add_library(${target} SHARED)
    add_library(platform::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        OUTPUT_NAME ${target}${PLATFORM_QT_SUFFIX}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION}
        INSTALL_RPATH "$ORIGIN") # an installed tree works from any prefix

    generate_export_header(${target}
        EXPORT_FILE_NAME "${PROJECT_BINARY_DIR}/include/${target}_export.h")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>"
        "$<INSTALL_INTERFACE:${PLATFORM_INSTALL_INCLUDEDIR}>")

    # A GNU unique symbol would pin the library in memory: dlclose() must really unload it.
    target_compile_options(${target} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>
        -fno-semantic-interposition)
    target_link_options(${target} PRIVATE
        LINKER:--no-undefined LINKER:--as-needed LINKER:-z,now LINKER:-z,relro)
    platform_bind_symbols(${target})
    platform_limit_exports(${target} ${ARGN})

    install(FILES "${PROJECT_BINARY_DIR}/include/${target}_export.h"
        DESTINATION ${PLATFORM_INSTALL_INCLUDEDIR}
        COMPONENT development)
    install(TARGETS ${target} EXPORT ${PLATFORM_PACKAGE_NAME}
        LIBRARY
            DESTINATION ${CMAKE_INSTALL_LIBDIR}
            COMPONENT ${component}
            NAMELINK_COMPONENT development)
endfunction()

# Binds the library's own symbols when it is linked instead of when it is loaded, where Qt does so too.
# Applications have to be compiled with -fPIC then, as Qt insists, since any other code would have its
# own addresses of the library's signals and meta-objects.
function(platform_bind_symbols target)
    get_target_property(demands Qt${PLATFORM_QT}::Core INTERFACE_COMPILE_OPTIONS)
    if("-fPIC" IN_LIST demands)
        target_link_options(${target} PRIVATE LINKER:-Bsymbolic)
    endif()
endfunction()

# Hidden visibility does not reach everything that the compiler instantiates from the headers of Qt
# and of the standard library: the linker keeps back whatever does not belong to the given names.
function(platform_limit_exports target)
    set(patterns "")
    foreach(name IN LISTS ARGN)
        # Members and functions; vtable, typeinfo and so on; what adjusts "this" for a second base.
        string(APPEND patterns
            "        ${name}::*;\n"
            "        ${name};\n"
            "        *?for?${name};\n"
            "        *?for?${name}::*;\n"
            "        *?thunk?to?${name}::*;\n")
    endforeach()
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
    file(CONFIGURE OUTPUT "${script}"
        CONTENT "{\nglobal:\n    extern \"C++\" {\n${patterns}    };\nlocal:\n    *;\n};\n")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${script}")
endfunction()

# platform_install_headers(FOLDER): everything below FOLDER as public headers.
function(platform_install_headers folder)
    install(DIRECTORY "${folder}/"
        DESTINATION ${PLATFORM_INSTALL_INCLUDEDIR}
        COMPONENT development)
endfunction()
