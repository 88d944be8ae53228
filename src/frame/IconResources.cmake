# The icons, as the collection "widgets". Format version and compression are pinned so that every
# Qt 5.15 makes the same data; the compression threshold stays the compiler's own.
qt_add_resources(icons "${PROJECT_SOURCE_DIR}/resources/icons/widgets.qrc"
    OPTIONS --format-version 3 --compress-algo zlib)

# Applications may call Q_INIT_RESOURCE(widgets), so the generated functions are exported.
set_source_files_properties(${icons} PROPERTIES COMPILE_OPTIONS -fvisibility=default)
target_sources(platform_widgets PRIVATE ${icons})
