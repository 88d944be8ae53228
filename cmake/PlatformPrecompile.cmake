# Precompiled headers of Qt: a source is compiled in a third of the time. They hide a missing #include,
# so only the presets for development have them; a packager's build, the packages and the checkers of
# ./dev lint read every source as it is.
option(PLATFORM_PRECOMPILE "Precompile the headers of Qt" OFF)

# platform_precompile(TARGET HEADER...): precompiles the headers for the target, and for those that
# reuse them by platform_reuse_precompiled().
function(platform_precompile target)
    if(PLATFORM_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    endif()
endfunction()

# platform_reuse_precompiled(TARGET OWNER): both must have the same options of the compiler.
function(platform_reuse_precompiled target owner)
    if(PLATFORM_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${owner})
    endif()
endfunction()

# platform_precompile_application(TARGET): for what is neither a library of the device nor a test.
function(platform_precompile_application target)
    if(NOT PLATFORM_PRECOMPILE)
        return()
    endif()
    if(NOT TARGET platform_precompiled)
        set(source "${PROJECT_BINARY_DIR}/precompiled.cpp")
        file(CONFIGURE OUTPUT "${source}" CONTENT "")
        add_library(platform_precompiled OBJECT "${source}")
        set_target_properties(platform_precompiled PROPERTIES AUTOMOC OFF)
        target_link_libraries(platform_precompiled PRIVATE Qt${PLATFORM_QT}::Widgets)
        platform_precompile(platform_precompiled
            <QApplication> <QLabel> <QLayout> <QPainter> <QPushButton> <QStyleOption> <QVector>)
    endif()
    platform_reuse_precompiled(${target} platform_precompiled)
endfunction()
