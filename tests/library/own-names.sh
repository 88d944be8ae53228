# Which names are the library's own. Sourced, never run.

# Prints a regular expression for the start of the names that the public headers below FOLDER declare:
# in the namespaces that they open, or in the classes that the headers without a namespace are named after.
own_names() {
    local folder=$1 roots
    roots=$( (
        grep -rhoE '^namespace [A-Za-z]+' "$folder" | cut -d' ' -f2
        find "$folder" -maxdepth 1 -name '*.h' -exec basename {} .h \;
    ) | sort -u | paste -sd'|')
    echo "($roots)(::|$)"
}
