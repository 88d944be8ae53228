#!/usr/bin/env bash
# compare the library's binary interface with the record of it
#
# usage: ./dev abi [--accept]
#
#   --accept  make the interface as it is now the record, in tests/library/record
#
# Both the debug and the release library are compared. The record is of x86-64 libraries.

accept=
case "${1:-}" in
    --accept) accept=--accept; shift ;;
    "") ;;
    *) unknown_option abi "$1" ;;
esac
[ $# -eq 0 ] || die "abi: too many arguments"
[ "$(uname -m)" = x86_64 ] || die "abi: the record is of x86-64 libraries; this is $(uname -m)"

need_packages build test
build dev platform_widgets platform_class_layout platform_print_metaobjects
build release platform_widgets

compare_contract() {
    tests/library/binary-contract.sh "$DEV_ROOT" "build/$1/src/libplatform_widgets.so.1.2" \
        build/dev/tests/library ${2:+"$2"}
}
compare_contract dev $accept
compare_contract release
if [ -n "$accept" ]; then
    git diff --stat -- tests/library/record || true
else
    echo "The binary interface is as recorded."
fi
