#!/usr/bin/env bash
# What must hold for the shared libraries as files: names, hardening, and nothing exported by accident.
#
# usage: elf-facts.sh SOURCE_DIR SUFFIX LIBRARY...
# SUFFIX is what the names of the libraries end in: nothing with Qt 5, 6 with Qt 6.
set -euo pipefail
export LC_ALL=C

source_dir=$1
suffix=$2
shift 2

. "$source_dir/tests/library/own-names.sh"

failures=0
fail() {
    echo "$library: $*" >&2
    failures=$((failures + 1))
}

# The start of the names that the library may export.
exports() {
    case "$1" in
        widgets) echo "$(own_names "$source_dir/include")|q(Init|Cleanup)Resources_widgets\(\)$" ;;
        style) echo "platform::ui::style::" ;;
        keyboard) echo "ui::keyboard::" ;;
    esac
}

check_name() {
    local name=libplatform_$1$suffix.so.1.2 link
    link=$(dirname "$library")/libplatform_$1$suffix.so
    [ "$(basename "$library")" = "$name" ] || fail "is not named $name"
    grep -qF "soname: [$name]" <<<"$dynamic" || fail "its soname is not $name"
    [ "$(readlink "$link")" = "$name" ] || fail "$link does not point to it"
}

check_hardening() {
    local segments
    segments=$(readelf -lW "$library")
    grep -q 'FLAGS.*BIND_NOW' <<<"$dynamic" || fail "symbols are bound late"
    grep -q GNU_RELRO <<<"$segments" || fail "relocated data stays writable"
    ! grep -q TEXTREL <<<"$dynamic" || fail "its code needs relocation"
    ! grep -q 'GNU_STACK.*RWE' <<<"$segments" || fail "its stack is executable"
}

# dlclose() must be able to unload the library, dlopen() to load it at any time.
check_unloading() {
    ! grep -q NODELETE <<<"$dynamic" || fail "it stays in memory: NODELETE"
    ! grep -q STATIC_TLS <<<"$dynamic" || fail "it cannot always be loaded late: STATIC_TLS"
    ! readelf --dyn-syms -W "$library" | grep ' UNIQUE ' || fail "it stays in memory: GNU unique symbols"
}

check_exports() {
    local foreign
    foreign=$(nm -DC --defined-only "$library" \
        | sed -E 's/^[0-9a-f]+ . //; s/^((vtable|typeinfo|typeinfo name|guard variable) for|(non-)?virtual thunk to) //' \
        | grep -vE "^($(exports "$1"))") || true
    [ -z "$foreign" ] || fail "it exports what is not its own:"$'\n'"$foreign"
}

for library in "$@"; do
    dynamic=$(readelf -dW "$library")
    kind=$(basename "$library" | sed -E 's/^libplatform_([a-z]+)6?\..*/\1/')
    check_name "$kind"
    check_hardening
    check_unloading
    check_exports "$kind"
done
[ "$failures" -eq 0 ]
