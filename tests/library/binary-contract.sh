#!/usr/bin/env bash
# Compares the binary interface of a library with the record of it, or accepts it as the new record:
#
#   symbols.txt      the exported functions and, with their sizes, data
#   classes.txt      the sizes of the classes in the public headers and their bases with offsets
#   vtables.txt      the virtual tables, entry by entry
#   metaobjects.txt  what the meta-objects tell of properties, signals, slots, methods and enumerations
#
# usage: binary-contract.sh SOURCE_DIR LIBRARY BUILD_DIR [--accept]
#
# BUILD_DIR holds the program platform_print_metaobjects and g++'s dump of the classes, class-layout.txt.
set -euo pipefail
export LC_ALL=C

source_dir=$1
library=$2
build_dir=$3
record=$source_dir/tests/library/record
found=$build_dir/found

. "$source_dir/tests/library/own-names.sh"
own=$(own_names "$source_dir/include")

# A constructor and a destructor each have several symbols with one readable name.
symbols() {
    nm -DSC --radix=d --defined-only "$library" | awk '
        {
            sized = $2 ~ /^[0-9]+$/
            kind = sized ? $3 : $2
            first = sized ? 4 : 3
            name = $first
            for (i = first + 1; i <= NF; ++i)
                name = name " " $i
            print name (kind ~ /^[TtWw]$/ ? "" : ", " $2 + 0 " bytes")
        }' | sort -u
}

# The dump has a paragraph for each class; the device libraries' and Qt's internal classes are not ours.
own_paragraphs() {
    awk -v RS= -v ORS='\n\n' -v start="^$1 for |^$1 " -v own="^$own" '
        {
            name = $1 == "Vtable" ? $3 : $2
            if ($0 ~ start && name ~ own && name !~ /^ui::keyboard::/ && name !~ /::QPrivateSignal$/)
                print
        }' "$build_dir/class-layout.txt"
}

classes() {
    own_paragraphs Class | awk '
        /^Class / {class = $2; next}
        /^ +size=/ {printf "%s%s: %s %s", separator, class, $1, $2; separator = "\n"; next}
        / \(0x/ && !/primary-for/ && $1 != class {printf ", %s at %s", $1, $NF}
        END {print ""}' | sort
}

vtables() {
    own_paragraphs Vtable \
        | sed -E 's/\(int \(\*\)\(\.\.\.\)\)//; s/^[0-9]+ +\(& (.*)\)$/    \1/; s/^[0-9]+ +/    /' \
        | sed -E 's/^    [A-Za-z:]+::(_ZT[hcv])/    \1/' \
        | c++filt \
        | awk '/^Vtable for / {print separator $3; separator = "\n"; entry = 0}
               /^    / {printf "%4d %s\n", entry++, substr($0, 5)}'
}

metaobjects() {
    local -a names
    mapfile -t names < <(nm -D --defined-only "$library" | awk '$3 ~ /16staticMetaObjectE$/ {print $3}')
    "$build_dir/platform_print_metaobjects" "$library" "${names[@]}"
}

rm -rf "$found"
mkdir -p "$found" "$record"
for kind in symbols classes vtables metaobjects; do
    "$kind" >"$found/$kind.txt"
    [ -s "$found/$kind.txt" ] || { echo "$library: no $kind found" >&2; exit 1; }
done

if [ "${4:-}" = --accept ]; then
    cp "$found"/*.txt "$record"
elif ! diff -ru "$record" "$found"; then
    echo "The binary interface differs from the record: applications built before may break." >&2
    echo "If that is meant, accept it with: ./dev abi --accept" >&2
    exit 1
fi
