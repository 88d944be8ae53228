#!/usr/bin/env bash
# write the reference: HTML pages and a file for Qt Assistant
#
# usage: ./dev docs
#
# Its pictures are taken by the gallery. A warning of the documentation is an error.

case "${1:-}" in
    --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
    "") ;;
    *) unknown_option docs "$1" ;;
esac

need_packages build docs
cmake --preset dev --log-level=WARNING -DPLATFORM_BUILD_REFERENCE=ON >&2
cmake --build --preset dev --target reference >&2
echo "build/dev/docs/html/index.html"
echo "build/dev/docs/platform_widgets.qch"
