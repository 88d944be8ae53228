#!/usr/bin/env bash
# make Debian packages, and try them on a clean Debian root
#
# usage: ./dev package [--check]
#
#   --check  ask lintian, install the packages on a clean root, take the gallery's pictures there,
#            build an application against them with CMake, pkg-config and qmake, and see that
#            Designer loads the plugin and Assistant the reference
#
# The packages are left in build/packages, their paths printed. The check leaves the gallery's
# pictures in build/packages/pictures.

check=no
case "${1:-}" in
    --check) check=yes ;;
    "") ;;
    *) unknown_option package "$1" ;;
esac
[ $# -le 1 ] || die "package: too many arguments"

# What Debian asks of packages in its own archive only, and:
# - library-not-linked-against-libc: the style library needs nothing of it;
# - package-name-doesnt-match-sonames: the stand-ins are two libraries in one package.
not_asked=no-changelog,no-manual-page,maintscript-calls-ldconfig
not_asked+=,library-not-linked-against-libc,package-name-doesnt-match-sonames

need_packages build docs package
build packages all reference
rm -f build/packages/*.deb
LC_ALL=C.UTF-8 cpack --preset packages >&2 # a path may have any letter in it
if [ "$check" = yes ]; then
    lintian --allow-root --fail-on error,warning --suppress-tags "$not_asked" build/packages/*.deb >&2
    . "$DEV_ROOT/tools/lib/sysroot.sh"
    debian_sources >build/packages/sources.list
    tests/package/clean-root.sh "$DEV_ROOT" build/packages build/packages/sources.list
fi
ls build/packages/*.deb
