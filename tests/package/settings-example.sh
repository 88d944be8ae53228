#!/usr/bin/env bash
# Installs a build into a temporary prefix, builds the example application against it, runs it,
# and taps through it on an X server of its own.
#
# usage: settings-example.sh SOURCE_DIR BUILD_DIR
# CXXFLAGS goes to the compiler, as a library built with sanitizers needs it.
set -euo pipefail

source_dir=$1
build_dir=$2
example=$source_dir/examples/settings
. "$source_dir/tests/package/example.sh"
scratch=$(kept_folder "$build_dir" settings-example)

install_anew "$build_dir" "$scratch/prefix"

echo "== By itself"
rm -rf "$scratch/settings"
cmake -S "$example" -B "$scratch/settings" -G Ninja -DPACKAGE="$package" \
    -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null

echo "== With its test"
cmake -S "$source_dir/tests/package/settings" -B "$scratch/test" -G Ninja \
    -DPACKAGE="$package" -DPLATFORM_QT="$qt" -DCMAKE_PREFIX_PATH="$scratch/prefix" \
    -DSETTINGS_DIR="$example" -DTESTS_DIR="$source_dir/tests" >/dev/null
cmake --build "$scratch/test"
for theme in "" --dark; do
    # shellcheck disable=SC2086
    QT_QPA_PLATFORM=offscreen runs_until_stopped "$scratch/test/settings/settings" $theme --updates "$scratch"
done
QT_QPA_PLATFORM=xcb XSERVER_SCREEN=800x480x24 "$source_dir/tests/support/with-x-server.sh" "$scratch/test/tst_Settings"
