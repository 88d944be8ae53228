include(CMakePackageConfigHelpers)

# Installs what find_package(platform_widgets) and pkg-config need.
function(platform_install_package)
    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/platform_widgets)
    set(pkgconfig_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

    install(EXPORT platform_widgets
        FILE platform_widgetsTargets.cmake
        NAMESPACE platform::
        DESTINATION ${package_dir}
        COMPONENT development)
    configure_package_config_file(
        "${PROJECT_SOURCE_DIR}/cmake/platform_widgetsConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/cmake/platform_widgetsConfig.cmake"
        INSTALL_DESTINATION ${package_dir})
    write_basic_package_version_file(
        "${PROJECT_BINARY_DIR}/cmake/platform_widgetsConfigVersion.cmake"
        COMPATIBILITY SameMajorVersion)
    install(FILES
        "${PROJECT_BINARY_DIR}/cmake/platform_widgetsConfig.cmake"
        "${PROJECT_BINARY_DIR}/cmake/platform_widgetsConfigVersion.cmake"
        DESTINATION ${package_dir}
        COMPONENT development)
    if(PLATFORM_DEVICE_PREFIX)
        install(FILES "${PROJECT_SOURCE_DIR}/cmake/PlatformDeviceLibraries.cmake"
            DESTINATION ${package_dir}
            COMPONENT development)
    endif()

    # The prefix is found from the file's own place, so that an installed tree can be moved.
    file(RELATIVE_PATH pkgconfig_to_prefix "/${pkgconfig_dir}" "/")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/platform_widgets.pc.in"
        "${PROJECT_BINARY_DIR}/cmake/platform_widgets.pc" @ONLY)
    install(FILES "${PROJECT_BINARY_DIR}/cmake/platform_widgets.pc"
        DESTINATION ${pkgconfig_dir}
        COMPONENT development)
endfunction()
