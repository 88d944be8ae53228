# The translations of the gallery, which also hold the texts of the stand-in keypad and of the library's
# accessible widgets, whose classes the headers declare. Sourced, never run.

readonly TRANSLATED_FOLDERS=(gallery include platform/keyboard src/frame src/indicators src/textentry)

# Takes the texts of the sources into the translation LANGUAGE in FILE.
update_translation() {
    local language=$1 file=$2
    lupdate -silent -no-obsolete -locations none -source-language en -target-language "$language" \
        "${TRANSLATED_FOLDERS[@]}" -ts "$file"
}
