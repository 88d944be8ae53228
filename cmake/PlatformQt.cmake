# Which Qt the build is for: the 5.15 of the device, or Qt 6 from the same sources. Files of the two
# builds differ in name, so that both can be installed side by side.

set(PLATFORM_QT 5 CACHE STRING "Major version of Qt to build with: 5 or 6")
set_property(CACHE PLATFORM_QT PROPERTY STRINGS 5 6)

if(PLATFORM_QT EQUAL 5)
    set(PLATFORM_QT_MINIMUM 5.15)
    set(PLATFORM_QT_SUFFIX "") # applications of the device know these names
elseif(PLATFORM_QT EQUAL 6)
    set(PLATFORM_QT_MINIMUM 6.4)
    set(PLATFORM_QT_SUFFIX 6)
else()
    message(FATAL_ERROR "PLATFORM_QT is 5 or 6, not '${PLATFORM_QT}'")
endif()

# What CMake, pkg-config and qmake call the library.
set(PLATFORM_PACKAGE_NAME platform_widgets${PLATFORM_QT_SUFFIX})

# platform_find_qt(MODULE...): a macro, for the targets must be known where it is called.
macro(platform_find_qt)
    find_package(Qt${PLATFORM_QT} ${PLATFORM_QT_MINIMUM} REQUIRED COMPONENTS ${ARGN})
endmacro()

# Qt's own programs, such as lrelease, by version: one without it in its name may be of either Qt.
set(PLATFORM_QT_PROGRAMS
    /usr/lib/qt${PLATFORM_QT}/bin "${Qt${PLATFORM_QT}_DIR}/../../../bin")
