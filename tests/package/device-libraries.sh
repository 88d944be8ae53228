#!/usr/bin/env bash
# Builds the library against device libraries from a prefix, for which the installed stand-ins serve
# here, optimised as the packages are, and sees that no stand-in is built, that the package finds the
# device's libraries again, that the Debian packages leave them to the device, and that the library
# keeps to its thresholds of size and relocations.
#
# usage: device-libraries.sh SOURCE_DIR BUILD_DIR
set -euo pipefail

source_dir=$1
build_dir=$2
. "$source_dir/tests/package/example.sh"
runtime=libplatform-widgets${suffix:+$suffix-}1.2
scratch=$(kept_folder "$build_dir" device-libraries)
rm -rf "$scratch"/device "$scratch"/results "$scratch"/build/*.deb

# The device's prefix holds its two libraries and their headers, nothing of the widget library.
install_anew "$build_dir" "$scratch/all"
headers=$scratch/all/include/$package
mkdir -p "$scratch/device/lib" "$scratch/device/include/ui"
find "$scratch/all" \( -name "libplatform_style$suffix.so*" -o -name "libplatform_keyboard$suffix.so*" \) \
    -exec cp -P {} "$scratch/device/lib" \;
cp -rp "$headers/platform" "$headers"/platform_{style,keyboard}_export.h "$scratch/device/include"
cp -rp "$headers/ui/keyboard" "$scratch/device/include/ui"

cmake -S "$source_dir" -B "$scratch/build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INTERPROCEDURAL_OPTIMIZATION=ON -DPLATFORM_QT="$qt" -DPLATFORM_DEVICE_PREFIX="$scratch/device" >/dev/null
cmake --build "$scratch/build"

if find "$scratch/build" -name 'libplatform_style*' -o -name 'libplatform_keyboard*' | grep .; then
    echo "a stand-in was built beside the device's libraries" >&2
    exit 1
fi

# The thresholds are those of 64-bit processors and Qt 5.
if [ "$qt$(uname -m)" = 5x86_64 ]; then
    . "$source_dir/tools/lib/bench.sh"
    mkdir "$scratch/results"
    measure_library "$scratch/build/src/libplatform_widgets.so.1.2" "$scratch/results"
    "$source_dir/tools/bench/table.py" "$scratch/results" | tee "$scratch/thresholds"
    [ "$(grep -c '| yes |$' "$scratch/thresholds")" = 2 ] || {
        echo "the library misses a threshold" >&2
        exit 1
    }
fi

(cd "$scratch/build" && cpack >cpack.log 2>&1) || { cat "$scratch/build/cpack.log" >&2; exit 1; }
if dpkg-deb -f "$scratch/build/$runtime"_*.deb Depends | grep platform; then
    echo "the package asks for another one with the device's libraries" >&2
    exit 1
fi

for deb in "$scratch"/build/*.deb; do
    name=$(dpkg-deb -f "$deb" Package)
    dpkg-deb --fsys-tarfile "$deb" | tar -x --to-stdout "./usr/share/doc/$name/copyright" \
        | cmp - "$source_dir/LICENSE" || { echo "$name does not hold the license" >&2; exit 1; }
done

install_anew "$scratch/build" "$scratch/prefix"
mkdir -p "$scratch/consumer"
write_changed "$scratch/consumer/CMakeLists.txt" <<'END'
cmake_minimum_required(VERSION 3.16)
project(consumer LANGUAGES CXX)
find_package(${PACKAGE} 1.2 REQUIRED)
add_executable(consumer main.cpp)
target_link_libraries(consumer PRIVATE platform::widgets)
END
write_changed "$scratch/consumer/main.cpp" <<'END'
#include <QApplication>
#include <ui/FileBrowserWidget.h>
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    return ui::FileBrowserWidget(nullptr).selectedFiles().size();
}
END
cmake -S "$scratch/consumer" -B "$scratch/consumer/build" -G Ninja -DPACKAGE="$package" \
    -DCMAKE_PREFIX_PATH="$scratch/prefix" >/dev/null
cmake --build "$scratch/consumer/build"
# On a device its libraries lie where the loader looks by itself.
LD_LIBRARY_PATH="$scratch/device/lib" "$scratch/consumer/build/consumer"
