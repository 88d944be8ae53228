#!/usr/bin/env bash
# build the library, the gallery and the tests
#
# usage: ./dev build [PRESET]
#
#   PRESET  dev (the default), release, asan or coverage; built in build/PRESET

preset=dev
case "${1:-}" in
    -*) unknown_option build "$1" ;;
    dev | release | asan | coverage) preset=$1 ;;
    "") ;;
    *) die "build: unknown preset '$1'" ;;
esac
[ $# -le 1 ] || die "build: too many arguments"

lists=(build)
[ "$preset" = release ] || lists+=(test)
need_packages "${lists[@]}"
build "$preset"
