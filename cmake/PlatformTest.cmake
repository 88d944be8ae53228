# The faster linker of Debian's binutils, where there is one.
if(NOT CMAKE_CROSSCOMPILING)
    find_program(PLATFORM_GOLD ld.gold)
    mark_as_advanced(PLATFORM_GOLD)
endif()

# platform_add_test(CLASS
#     [PLATFORMS offscreen x11]  where it runs; offscreen alone by default
#     [SCREENS WIDTHxHEIGHT...]  on x11, the sizes of the screens that it runs on one after the other
#     [SOURCES file...]          further sources beside tst_CLASS.cpp
#     [LIBRARIES target...]      further libraries to link
#     [ALONE]                    a program of its own, tst_CLASS: for a class with a main(), with other
#                                rules of linking, or with definitions that take another library's place
#     [LOADS_LIBRARY])           ALONE, and not linked to the widget library, whose path it gets as
#                                WIDGETS_LIBRARY
#
# Links tst_CLASS.cpp to the program of its folder, tests_FOLDER, which runs one of its classes in a
# process. Registers the class once per platform as PLATFORM.CLASS, and with SCREENS once per screen as
# x11.CLASS.WIDTHxHEIGHT. A warning that no test announced with QTest::ignoreMessage() fails the run,
# and so does a skipped test.
# CTest starts the tests with the highest COST first, which is their time in seconds where it is long.
function(platform_add_test class)
    cmake_parse_arguments(PARSE_ARGV 1 arg "ALONE;LOADS_LIBRARY" "" "PLATFORMS;SCREENS;SOURCES;LIBRARIES")
    if(arg_ALONE OR arg_LOADS_LIBRARY)
        set(program tst_${class})
        set(argument "")
    else()
        cmake_path(GET CMAKE_CURRENT_SOURCE_DIR FILENAME folder)
        set(program tests_${folder})
        set(argument ${class})
    endif()
    if(NOT TARGET ${program})
        platform_add_test_program(${program})
    endif()
    target_sources(${program} PRIVATE tst_${class}.cpp ${arg_SOURCES})
    target_link_libraries(${program} PRIVATE ${arg_LIBRARIES})
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
        if(NOT platform STREQUAL "x11")
            platform_register_test(${platform}.${class} ${platform} "" ${program} ${argument})
            continue()
        endif()
        set(in_x_server "${PROJECT_SOURCE_DIR}/tests/support/with-x-server.sh" $<TARGET_FILE:${program}> ${argument})
        if(NOT arg_SCREENS)
            platform_register_test(x11.${class} xcb "" ${in_x_server})
        endif()
        foreach(screen IN LISTS arg_SCREENS)
            platform_register_test(x11.${class}.${screen} xcb "XSERVER_SCREEN=${screen}x24" ${in_x_server})
        endforeach()
    endforeach()
endfunction()

function(platform_add_test_program program)
    add_executable(${program})
    target_link_libraries(${program} PRIVATE platform_test_support)
    platform_reuse_precompiled(${program} platform_test_support)
    # It includes nearly nothing, and loading a precompiled header takes longer.
    set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/${program}_autogen/mocs_compilation.cpp"
        PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
    if(PLATFORM_GOLD)
        target_link_options(${program} PRIVATE -fuse-ld=gold)
    endif()
endfunction()

# Registers the test NAME, which runs the command ARGN with Qt's platform plugin PLUGIN.
function(platform_register_test name plugin environment)
    add_test(NAME ${name} COMMAND ${ARGN})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=${plugin};${PLATFORM_TEST_ENVIRONMENT};${environment}"
        FAIL_REGULAR_EXPRESSION "QWARN  ;QCRITICAL;QSYSTEM;SKIP   ;XFAIL  "
        TIMEOUT ${PLATFORM_TEST_TIMEOUT})
endfunction()

set(PLATFORM_TEST_ENVIRONMENT
    "QT_FONT_DPI=96"
    "QT_XCB_GL_INTEGRATION=none" # no widget needs OpenGL, whose software driver leaks
    "LC_ALL=C.UTF-8"
    "LSAN_OPTIONS=suppressions='${PROJECT_SOURCE_DIR}/tests/support/lsan.supp':print_suppressions=0"
    "UBSAN_OPTIONS=print_stacktrace=1")

set(default_timeout 300)

if(CMAKE_CROSSCOMPILING)
    set(default_timeout 1200) # an emulated program is some ten times slower
    # The emulator redirects only some of the calls by which Qt looks for its plugins into the sysroot.
    list(APPEND PLATFORM_TEST_ENVIRONMENT
        "QT_PLUGIN_PATH=$<TARGET_FILE_DIR:Qt${PLATFORM_QT}::QOffscreenIntegrationPlugin>/..")
endif()

set(PLATFORM_TEST_TIMEOUT ${default_timeout} CACHE STRING "Seconds after which a test program counts as hanging")
