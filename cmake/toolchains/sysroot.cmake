# What the toolchain files share: a compiler for another processor that sees a sysroot only, and an
# emulator that runs its programs. docs/arm.md tells how to use a device's own SDK.
set(CMAKE_SYSTEM_NAME Linux)

set(PLATFORM_SYSROOT "$ENV{PLATFORM_SYSROOT}" CACHE PATH
    "Root of the device's file system; empty takes the one that ./dev arm makes")
if(PLATFORM_SYSROOT)
    set(CMAKE_SYSROOT "${PLATFORM_SYSROOT}")
else()
    get_filename_component(CMAKE_SYSROOT
        "${CMAKE_CURRENT_LIST_DIR}/../../build/sysroot-${PLATFORM_ARCHITECTURE}" ABSOLUTE)
endif()
if(NOT IS_DIRECTORY "${CMAKE_SYSROOT}/usr")
    message(FATAL_ERROR "No sysroot in ${CMAKE_SYSROOT}: run ./dev arm, or set PLATFORM_SYSROOT")
endif()
# CMake reads this file again for each of its compiler checks.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES PLATFORM_SYSROOT)

# CMake does not find this out where a path has spaces.
set(CMAKE_LIBRARY_ARCHITECTURE ${PLATFORM_TRIPLET})

if(NOT CMAKE_CXX_COMPILER)
    set(CMAKE_CXX_COMPILER ${PLATFORM_TRIPLET}-g++)
endif()

# Programs come from this machine, everything else from the sysroot or, like the device's own
# libraries, from a place named by hand.
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
if(PLATFORM_DEVICE_PREFIX)
    list(APPEND CMAKE_FIND_ROOT_PATH "${PLATFORM_DEVICE_PREFIX}")
endif()

# Qt's own package would run the tools of the sysroot, which are for its processor.
set(PLATFORM_QT_TOOLS "/usr/lib/qt5/bin" CACHE PATH "Folder of this machine's moc, rcc, uic and qmake")
foreach(tool IN ITEMS moc rcc uic qmake)
    if(NOT TARGET Qt5::${tool})
        add_executable(Qt5::${tool} IMPORTED)
        set_target_properties(Qt5::${tool} PROPERTIES IMPORTED_LOCATION "${PLATFORM_QT_TOOLS}/${tool}")
    endif()
endforeach()

set(CMAKE_CROSSCOMPILING_EMULATOR ${PLATFORM_EMULATOR} -L "${CMAKE_SYSROOT}")
