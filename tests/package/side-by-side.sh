#!/usr/bin/env bash
# Installs a build with Qt 6 and one with Qt 5 into one prefix, and sees that neither takes a file of the
# other and that an application gets the one that it asks for.
#
# usage: side-by-side.sh SOURCE_DIR BUILD_DIR
set -euo pipefail

source_dir=$1
build_dir=$2
. "$source_dir/tests/package/example.sh"
# What pkg-config prints cannot be used in a shell where the prefix has a space.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cmake -S "$source_dir" -B "$scratch/build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DPLATFORM_QT=5 \
    -DPLATFORM_BUILD_DESIGNER=ON >/dev/null
cmake --build "$scratch/build"
install_anew "$build_dir" "$scratch/prefix"
if (cd "$scratch/prefix" && find . ! -type d ! -path '*6*' | grep .); then
    echo "these files of the build with Qt 6 have no 6 in their path" >&2
    exit 1
fi
install_anew "$scratch/build" "$scratch/qt5"
if (cd "$scratch/qt5" && find . ! -type d -exec test -e "$scratch/prefix/{}" \; -print | grep .); then
    echo "these files belong to both builds" >&2
    exit 1
fi
cmake --install "$scratch/build" --prefix "$scratch/prefix" >/dev/null

mkdir -p "$scratch/consumer"
cp -p "$source_dir"/tests/package/consumer/* "$scratch/consumer"
readme_example "$source_dir" | write_changed "$scratch/consumer/main.cpp"

# libraries_of PROGRAM: those of Qt and of this project.
libraries_of() {
    ldd "$1" | grep -oE '^[[:space:]]*lib(Qt|platform_)[^ ]*'
}

for version in 5 6; do
    export PLATFORM_QT=$version
    . "$source_dir/tests/package/example.sh"
    mkdir -p "$scratch/with-qt$version"
    builds_with_cmake "$scratch/consumer" "$scratch/with-qt$version" "$scratch/prefix"
    builds_with_pkg_config "$scratch/consumer" "$scratch/with-qt$version" "$scratch/prefix"
    builds_with_qmake "$scratch/consumer" "$scratch/with-qt$version" "$scratch/prefix"
    for program in cmake/example example qmake/example; do
        libraries_of "$scratch/with-qt$version/$program" | grep -q "libplatform_widgets$suffix\.so"
        if libraries_of "$scratch/with-qt$version/$program" \
            | grep -vE "^[[:space:]]*lib(Qt$version|platform_[a-z]+$suffix\.so)"; then
            echo "the application with Qt $version uses these libraries" >&2
            exit 1
        fi
    done
done
