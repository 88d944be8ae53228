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

# The gallery knows its options and says so only after it has been built.
known=$(sed -nE 's/^const QString [a-zA-Z]+Name = QStringLiteral\("(.*)"\);/--\1/p' gallery/GalleryOptions.cpp)
for option in "$@"; do
    case "$option" in
        --help-all | --version | -- | -[!-]*) ;;
        --*) grep -qxF -- "${option%%=*}" <<<"$known" || unknown_option gallery "$option" ;;
    esac
done

check_preconditions gallery
start_stages gallery 2
stage "the packages that are needed" need_packages build gallery
stage "building" build gallery platform-widgets-gallery
cd "$DEV_CALLER" || exit
exec "$DEV_ROOT/build/gallery/gallery/platform-widgets-gallery" "$@"
