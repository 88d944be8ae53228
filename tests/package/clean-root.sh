#!/usr/bin/env bash
# Installs the Debian packages on a clean Debian root in a temporary folder and uses them there:
# the gallery takes its pictures, applications are built with CMake, pkg-config and qmake, Designer
# loads the plugin, Assistant takes the reference, and a device gets no stand-in.
#
# usage: clean-root.sh SOURCE_DIR PACKAGE_DIR SOURCES_LIST
# The pictures are left in PACKAGE_DIR/pictures.
set -euo pipefail

source_dir=$1
package_dir=$2
sources=$3
. "$source_dir/tests/package/example.sh"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
chmod 755 "$scratch" # mmdebstrap may work as another user

# What goes into the root.
mkdir "$scratch/check"
cp "$package_dir"/*.deb "$scratch/check"
cp "$source_dir"/tests/package/{example,inside-clean-root}.sh "$scratch/check"
cp "$source_dir/tests/designer/AllWidgets.ui" "$scratch/check"
cp -r "$source_dir/tests/package/consumer" "$scratch/check/consumer"
readme_example "$source_dir" >"$scratch/check/consumer/main.cpp"

# A format without an output: the root is thrown away once the hooks have run.
mmdebstrap --quiet --variant=apt --format=null \
    --customize-hook="copy-in '$scratch/check' /" \
    --customize-hook='chroot "$1" bash /check/inside-clean-root.sh' \
    --customize-hook="copy-out /pictures '$scratch'" \
    "$(. /etc/os-release && echo "$VERSION_CODENAME")" - - <"$sources"

rm -rf "$package_dir/pictures"
cp -r "$scratch/pictures" "$package_dir/pictures"
