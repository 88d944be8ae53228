#!/usr/bin/env bash
# write the reference: HTML pages and a file for Qt Assistant
#
# usage: ./dev docs
#
# Its pictures are taken by the gallery. A warning of the documentation is an error.

case "${1:-}" in
    "") ;;
    *) unknown_option docs "$1" ;;
esac

need_packages build docs
build docs reference
if grep -rlF "$DEV_ROOT" build/gallery/docs/html >&2; then
    die "docs: these pages name the folder of the sources"
fi
echo "build/gallery/docs/html/index.html"
echo "build/gallery/docs/platform_widgets.qch"
