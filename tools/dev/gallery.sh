#!/usr/bin/env bash
# build and open the gallery, which shows every widget live
#
# usage: ./dev gallery [OPTION...] [DIRECTORY...]
#
#   --screenshots DIR   render every page to PNG files in DIR and print their paths
#   --style-sheet FILE  apply an application style sheet
#   --page ID           open a certain page
#   --list-pages        list the pages
#   DIRECTORY           a root of the file browser page
#
# Without a display every page is rendered to PNG files. The gallery checks its options itself.

case "${1:-}" in
    --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
esac

need_packages build gallery
build gallery platform-widgets-gallery
exec build/gallery/gallery/platform-widgets-gallery "$@"
