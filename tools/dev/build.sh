#!/usr/bin/env bash
# build the library, the gallery and the tests
#
# usage: ./dev build [PRESET]
#
#   PRESET  dev (the default), release, asan or coverage; built in build/PRESET. With Qt 6: dev-qt6 or
#           asan-qt6, or qt6 for the library, the stand-ins and the gallery alone

preset=dev
case "${1:-}" in
    -*) unknown_option build "$1" ;;
    dev | release | asan | coverage | qt6 | dev-qt6 | asan-qt6) preset=$1 ;;
    "") ;;
    *) die "build: unknown preset '$1'" ;;
esac
[ $# -le 1 ] || die "build: too many arguments"

lists=(build)
case "$preset" in
    release) ;;
    qt6) lists+=(qt6) ;;
    *-qt6) lists+=(test qt6 test-qt6) ;;
    *) lists+=(test) ;;
esac
need_packages "${lists[@]}"
build "$preset"
