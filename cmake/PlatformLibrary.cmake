include(GenerateExportHeader)

# platform_add_library(NAME): a shared library whose file name and soname are libplatform_NAME.so.1.2,
# which exports only what carries its export macro and leaves no symbol undefined.
# It is installed and exported as platform::NAME.
function(platform_add_library name)
    set(target platform_${name})
    add_library(${target} SHARED)
    add_library(platform::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION})

    generate_export_header(${target}
        EXPORT_FILE_NAME "${PROJECT_BINARY_DIR}/include/${target}_export.h")
    target_include_directories(${target} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/include>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/platform_widgets>")

    # A GNU unique symbol would pin the library in memory: dlclose() must really unload it.
    target_compile_options(${target} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>
        -fno-semantic-interposition)
    target_link_options(${target} PRIVATE
        LINKER:--no-undefined LINKER:--as-needed LINKER:-z,now LINKER:-z,relro)

    install(FILES "${PROJECT_BINARY_DIR}/include/${target}_export.h"
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/platform_widgets)
    install(TARGETS ${target} EXPORT platform_widgets)
endfunction()
