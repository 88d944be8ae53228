#!/usr/bin/env bash
# make Debian packages, and try them on a clean Debian root
#
# usage: ./dev package [--check]
#
#   --check  install the packages on a clean root, take the gallery's pictures there, and build an
#            application against them with CMake, pkg-config and qmake
#
# The packages are left in build/packages, their paths printed. The check leaves the gallery's
# pictures in build/packages/pictures.

check=no
case "${1:-}" in
    --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
    --check) check=yes ;;
    "") ;;
    *) unknown_option package "$1" ;;
esac
[ $# -le 1 ] || die "package: too many arguments"

need_packages build docs package
build packages all reference
rm -f build/packages/*.deb
cpack --preset packages >&2
if [ "$check" = yes ]; then
    . "$DEV_ROOT/tools/lib/sysroot.sh"
    debian_sources >build/packages/sources.list
    tests/package/clean-root.sh "$DEV_ROOT" build/packages build/packages/sources.list
fi
ls build/packages/*.deb
