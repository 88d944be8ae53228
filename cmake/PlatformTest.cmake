# platform_add_test(CLASS
#     [PLATFORMS offscreen x11]  where it runs; offscreen alone by default
#     [SOURCES file...]          further sources beside tst_CLASS.cpp
#     [LIBRARIES target...]      further libraries to link
#     [LOADS_LIBRARY])           not linked to the widget library, whose path it gets as WIDGETS_LIBRARY
#
# Builds tst_CLASS and registers it once per platform as PLATFORM.CLASS. A warning that no test
# announced with QTest::ignoreMessage() fails the run, and so does a skipped test.
function(platform_add_test class)
    cmake_parse_arguments(PARSE_ARGV 1 arg "LOADS_LIBRARY" "" "PLATFORMS;SOURCES;LIBRARIES")
    set(program tst_${class})
    add_executable(${program} ${program}.cpp ${arg_SOURCES})
    target_link_libraries(${program} PRIVATE platform_test_support ${arg_LIBRARIES})
    if(arg_LOADS_LIBRARY)
        add_dependencies(${program} platform_widgets)
        target_compile_definitions(${program} PRIVATE WIDGETS_LIBRARY="$<TARGET_FILE:platform_widgets>")
    else()
        target_link_libraries(${program} PRIVATE platform::widgets)
    endif()

    if(NOT arg_PLATFORMS)
        set(arg_PLATFORMS offscreen)
    endif()
    if(CMAKE_CROSSCOMPILING)
        # An emulated program's requests to a real X server and window manager say nothing about a
        # device that has neither, and take long.
        list(REMOVE_ITEM arg_PLATFORMS x11)
    endif()
    foreach(platform IN LISTS arg_PLATFORMS)
        if(platform STREQUAL "x11")
            set(command "${PROJECT_SOURCE_DIR}/tests/support/with-x-server.sh" $<TARGET_FILE:${program}>)
            set(plugin xcb)
        else()
            set(command ${program})
            set(plugin offscreen)
        endif()
        add_test(NAME ${platform}.${class} COMMAND ${command})
        set_tests_properties(${platform}.${class} PROPERTIES
            ENVIRONMENT "QT_QPA_PLATFORM=${plugin};${PLATFORM_TEST_ENVIRONMENT}"
            FAIL_REGULAR_EXPRESSION "QWARN  ;QCRITICAL;QSYSTEM;SKIP   ;XFAIL  "
            TIMEOUT 300)
    endforeach()
endfunction()

set(PLATFORM_TEST_ENVIRONMENT
    "QT_FONT_DPI=96"
    "QT_XCB_GL_INTEGRATION=none" # no widget needs OpenGL, whose software driver leaks
    "LC_ALL=C.UTF-8"
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1")

if(CMAKE_CROSSCOMPILING)
    # The emulator redirects only some of the calls by which Qt looks for its plugins into the sysroot.
    list(APPEND PLATFORM_TEST_ENVIRONMENT
        "QT_PLUGIN_PATH=$<TARGET_FILE_DIR:Qt5::QOffscreenIntegrationPlugin>/..")
endif()
