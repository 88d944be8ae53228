#!/usr/bin/env bash
# Installs a build into a temporary prefix and builds and runs a small application against it,
# with CMake, with pkg-config and with qmake, and lets Designer load the plugin: what users do is what
# is tested.
#
# usage: installed-package.sh SOURCE_DIR BUILD_DIR
# CXXFLAGS goes to the application's compiler, as a library built with sanitizers needs it.
set -euo pipefail

source_dir=$1
build_dir=$2
. "$source_dir/tests/package/example.sh"
# What pkg-config prints cannot be used in a shell where the prefix has a space.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
prefix=$scratch/prefix

# A program that includes every installed header and runs an application object.
all_headers() {
    (cd "$prefix/include/$package" && find . -name '*.h' | sort) \
        | sed 's|^\./\(.*\)|#include <\1>|'
    echo '#include <QApplication>'
    echo 'int main(int argc, char** argv) { QApplication application(argc, argv); return Switch().isChecked(); }'
}

install_anew "$build_dir" "$prefix"

mkdir -p "$scratch/consumer"
cp -p "$source_dir"/tests/package/consumer/* "$scratch/consumer"
readme_example "$source_dir" >"$scratch/consumer/main.cpp"
all_headers >"$scratch/consumer/all_headers.cpp"

builds_with_cmake "$scratch/consumer" "$scratch" "$prefix"
builds_with_pkg_config "$scratch/consumer" "$scratch" "$prefix"
builds_with_qmake "$scratch/consumer" "$scratch" "$prefix"

plugin=$(find "$prefix" -name libplatform_widgets_designer.so)
if [ -n "$plugin" ]; then # which not every build makes
    echo "== Qt Designer"
    QT_DEBUG_PLUGINS=1 QT_PLUGIN_PATH=$(dirname "$(dirname "$plugin")") \
        runs_until_stopped "$("/usr/lib/qt$qt/bin/qmake" -query QT_INSTALL_BINS)/designer" "$source_dir/tests/designer/AllWidgets.ui" \
        2>"$scratch/designer.log"
    # The two versions of Qt say it in another order.
    grep -qE "loaded library.*$plugin|$plugin.* loaded library" "$scratch/designer.log" || {
        grep libplatform_widgets_designer "$scratch/designer.log" >&2
        echo "Designer does not load the installed plugin" >&2
        exit 1
    }
fi
