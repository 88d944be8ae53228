include(CMakePackageConfigHelpers)

# Installs what find_package(platform_widgets), pkg-config and qmake need.
function(platform_install_package)
    platform_install_cmake_package()
    platform_install_pkgconfig_file()
    platform_install_qmake_module()
endfunction()

function(platform_install_cmake_package)
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${PLATFORM_PACKAGE_NAME})
    install(EXPORT ${PLATFORM_PACKAGE_NAME}
        FILE ${PLATFORM_PACKAGE_NAME}Targets.cmake
        NAMESPACE platform::
        DESTINATION ${package_dir}
        COMPONENT development)
    configure_package_config_file(
        "${PROJECT_SOURCE_DIR}/cmake/platform_widgetsConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}Config.cmake"
        INSTALL_DESTINATION ${package_dir})
    write_basic_package_version_file(
        "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}ConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES
        "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}Config.cmake"
        "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}ConfigVersion.cmake"
        DESTINATION ${package_dir}
        COMPONENT development)
    if(PLATFORM_DEVICE_PREFIX)
        install(FILES "${PROJECT_SOURCE_DIR}/cmake/PlatformDeviceLibraries.cmake"
            DESTINATION ${package_dir}
            COMPONENT development)
    endif()
endfunction()

function(platform_install_pkgconfig_file)
    # The prefix is found from the file's own place, so that an installed tree can be moved.
    set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    file(RELATIVE_PATH pkgconfig_to_prefix "/${pkgconfig_dir}" "/")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/platform_widgets.pc.in"
        "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/cmake/${PLATFORM_PACKAGE_NAME}.pc"
        DESTINATION ${pkgconfig_dir}
        COMPONENT development)
endfunction()

function(platform_install_qmake_module)
    # With the prefix /usr this is where Debian's qmake looks by itself.
    set(modules_dir ${CMAKE_INSTALL_LIBDIR}/qt${PLATFORM_QT}/mkspecs/modules)
    file(RELATIVE_PATH modules_to_prefix "/${modules_dir}" "/")
    string(REGEX REPLACE "/$" "" modules_to_prefix "${modules_to_prefix}")
    if(PLATFORM_DEVICE_PREFIX)
        set(keyboard_includes "${PLATFORM_DEVICE_keyboard_INCLUDE_DIR}")
        get_filename_component(keyboard_libs "${PLATFORM_DEVICE_keyboard_LIBRARY}" DIRECTORY)
    else()
        set(keyboard_includes "$$QT.${PLATFORM_PACKAGE_NAME}.includes")
        set(keyboard_libs "$$QT.${PLATFORM_PACKAGE_NAME}.libs")
    endif()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/qt_lib_platform_widgets.pri.in"
        "${PROJECT_BINARY_DIR}/cmake/qt_lib_${PLATFORM_PACKAGE_NAME}.pri" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/cmake/qt_lib_${PLATFORM_PACKAGE_NAME}.pri"
        DESTINATION ${modules_dir}
        COMPONENT development)
endfunction()
