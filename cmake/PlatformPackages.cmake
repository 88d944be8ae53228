# Debian packages, one for each install component that the build has. Made by ./dev package.
#
# platform_describe_package(COMPONENT PACKAGE
#     SUMMARY text      the first line of its description
#     DESCRIPTION text  what follows after what all packages say
#     SECTION section   of Debian's archive
#     [DEPENDS ...]     besides the shared libraries, which are computed
#     [REPLACES name]   a name that it provides, and that no other installed package may provide
#     [SHLIBS lines]    which package other packages need that link its libraries
#     [ALL])            the same for every processor
macro(platform_describe_package component package)
    cmake_parse_arguments(arg "ALL" "SUMMARY;DESCRIPTION;SECTION;REPLACES" "DEPENDS;SHLIBS" ${ARGN})
    string(TOUPPER ${component} upper)
    string(REPLACE ";" ", " CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${arg_DEPENDS}")
    foreach(relation IN ITEMS PROVIDES CONFLICTS REPLACES)
        set(CPACK_DEBIAN_${upper}_PACKAGE_${relation} "${arg_REPLACES}")
    endforeach()
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
    set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${arg_SECTION})
    set(CPACK_DEBIAN_${upper}_DESCRIPTION
        "${arg_SUMMARY}\n${PROJECT_DESCRIPTION}.\n\n${arg_DESCRIPTION}")
    set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON)
    if(arg_SHLIBS)
        list(JOIN arg_SHLIBS "\n" shlibs)
        set(control "${PROJECT_BINARY_DIR}/packages/${component}")
        file(CONFIGURE OUTPUT "${control}/shlibs" CONTENT "${shlibs}\n")
        file(CONFIGURE OUTPUT "${control}/triggers" CONTENT "activate-noawait ldconfig\n")
        set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${control}/shlibs" "${control}/triggers")
    endif()
    if(arg_ALL)
        set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
        set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF)
    endif()
endmacro()

set(same_version "(= ${PROJECT_VERSION})")
set(prefix platform-widgets${PLATFORM_QT_SUFFIX})
set(device platform-device-libraries${PLATFORM_QT_SUFFIX})
# With the soname, as another one may lie beside it.
if(PLATFORM_QT EQUAL 5)
    set(runtime lib${prefix}${PROJECT_VERSION})
    set(qt_svg libqt5svg5)
    set(qt_development "qtbase5-dev (>= ${PLATFORM_QT_MINIMUM})")
    set(qt_translations qttranslations5-l10n)
    set(qt_designer qttools5-dev-tools)
else()
    set(runtime lib${prefix}-${PROJECT_VERSION})
    set(qt_svg libqt6svg6)
    set(qt_development "qt6-base-dev (>= ${PLATFORM_QT_MINIMUM})")
    set(qt_translations qt6-translations-l10n)
    set(qt_designer designer-qt6)
endif()

# The device brings libraries of its own in place of the stand-ins: built against those, the
# library's package leaves them to the device.
set(device_libraries "${prefix}-standins ${same_version} | ${device}")
set(standins "${prefix}-standins ${same_version}")
if(PLATFORM_DEVICE_PREFIX)
    set(device_libraries)
    set(standins)
endif()

platform_describe_package(runtime ${runtime}
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT}"
    DESCRIPTION "This package contains the shared library."
    SECTION libs
    DEPENDS ${device_libraries} ${qt_svg} # Qt loads the plugin that reads the icons by itself
    SHLIBS "libplatform_widgets${PLATFORM_QT_SUFFIX} ${PROJECT_VERSION} ${runtime} (>= ${PROJECT_VERSION})")
platform_describe_package(standins ${prefix}-standins
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT} - stand-ins for a device's libraries"
    DESCRIPTION "This package contains a style and a keyboard library for machines that have
none. A device brings its own, in a package that provides
${device}."
    SECTION libs
    REPLACES ${device}
    SHLIBS
        "libplatform_style${PLATFORM_QT_SUFFIX} ${PROJECT_VERSION} ${prefix}-standins | ${device}"
        "libplatform_keyboard${PLATFORM_QT_SUFFIX} ${PROJECT_VERSION} ${prefix}-standins | ${device}")
platform_describe_package(development lib${prefix}-dev
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT} - development files"
    DESCRIPTION "This package contains the headers and what CMake, pkg-config and qmake need to
find the library."
    SECTION libdevel
    DEPENDS "${runtime} ${same_version}" ${standins} ${qt_development})
platform_describe_package(gallery ${prefix}-gallery
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT} - gallery"
    DESCRIPTION "This package contains an application that shows every widget live and takes
pictures of all of them."
    SECTION x11
    DEPENDS "${runtime} ${same_version}" fonts-dejavu-core ${qt_translations})
platform_describe_package(designer ${prefix}-designer
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT} - plugin for Qt Designer"
    DESCRIPTION "This package contains the plugin with which Qt Designer offers the widgets and
QUiLoader makes them."
    SECTION devel
    DEPENDS "${runtime} ${same_version}" ${qt_designer})
platform_describe_package(documentation lib${prefix}-doc
    SUMMARY "touch-screen widgets for Qt ${PLATFORM_QT} - reference"
    DESCRIPTION "This package contains the reference as HTML pages and as a file for Qt
Assistant."
    SECTION doc
    ALL)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has a summary of its own
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_VENDOR "platform_widgets")
set(CPACK_PACKAGE_CONTACT "platform_widgets developers <platform-widgets@example.org>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON) # whatever the umask
# Where the libraries are that the packages need, before they are installed.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/src")
foreach(name IN ITEMS style keyboard)
    if(PLATFORM_DEVICE_PREFIX)
        get_filename_component(folder "${PLATFORM_DEVICE_${name}_LIBRARY}" DIRECTORY)
    else()
        set(folder "${PROJECT_BINARY_DIR}/platform/${name}")
    endif()
    list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${folder}")
endforeach()
get_cmake_property(CPACK_COMPONENTS_ALL COMPONENTS)
list(REMOVE_ITEM CPACK_COMPONENTS_ALL Unspecified)

# The license goes into every package, under the name that Debian has for it. After the list of the
# components, so that none is made for the license alone.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${CPACK_DEBIAN_${upper}_PACKAGE_NAME}"
        RENAME copyright
        COMPONENT ${component})
endforeach()

include(CPack)
