# Compiles the translations of the gallery into it, as :/translations/gallery_LANGUAGE.qm.
set(languages de)

# A program of the build host: find_package() of the Linguist tools would look in the sysroot when
# cross-building.
find_program(PLATFORM_LRELEASE NAMES lrelease
    HINTS ${PLATFORM_QT_PROGRAMS} NO_DEFAULT_PATH REQUIRED)

set(entries)
foreach(language IN LISTS languages)
    set(translation "${CMAKE_CURRENT_SOURCE_DIR}/translations/gallery_${language}.ts")
    set(compiled "${CMAKE_CURRENT_BINARY_DIR}/gallery_${language}.qm")
    add_custom_command(OUTPUT "${compiled}"
        COMMAND ${PLATFORM_LRELEASE} -silent "${translation}" -qm "${compiled}"
        DEPENDS "${translation}"
        VERBATIM)
    string(APPEND entries "<file>gallery_${language}.qm</file>")
endforeach()
set(qrc "${CMAKE_CURRENT_BINARY_DIR}/translations.qrc")
file(CONFIGURE OUTPUT "${qrc}"
    CONTENT "<RCC><qresource prefix=\"/translations\">${entries}</qresource></RCC>\n")
qt_add_resources(gallery_translations "${qrc}")
