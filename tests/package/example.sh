# What the tests of the installed library share. Sourced, never run. PLATFORM_QT is 6 for Qt 6.

qt=${PLATFORM_QT:-5}
suffix=
[ "$qt" = 5 ] || suffix=$qt
# shellcheck disable=SC2034 # the scripts that source this one use it
package=platform_widgets$suffix

# Prints the first C++ block of the README: the example that users copy.
readme_example() {
    awk '/^```cpp/ {inside = 1; next} /^```/ && inside {exit} inside' "$1/README.md"
}

# The example shows a window and runs until it is closed: alive after a while is a success.
runs_until_stopped() {
    local status=0
    timeout --preserve-status --signal=TERM 3 "$@" || status=$?
    [ "$status" -eq $((128 + 15)) ] || { echo "$1 ended by itself with status $status" >&2; return 1; }
}

# kept_folder BUILD_DIR NAME: where a test builds, so that the next run has only to build what has changed.
kept_folder() {
    local folder=$1/tests/package/$2
    mkdir -p "$folder"
    echo "$folder"
}

# Writes a file from the input, unless it holds that already: what is older is not built again.
write_changed() {
    local content
    content=$(cat; echo .)
    [ -f "$1" ] && [ "$content" = "$(cat "$1"; echo .)" ] || printf '%s' "${content%.}" >"$1"
}

# install_anew BUILD_DIR PREFIX: with nothing left of an earlier installation; files keep their times.
install_anew() {
    rm -rf "$2"
    cmake --install "$1" --prefix "$2" >/dev/null
}

# Applications built against an installed library, as users do it. Each function takes the sources of the
# application, the folder to build it in, and the prefix.

builds_with_cmake() {
    echo "== CMake"
    cmake -S "$1" -B "$2/cmake" -G Ninja -DPACKAGE="$package" -DCMAKE_PREFIX_PATH="$3" >/dev/null
    cmake --build "$2/cmake"
    [ ! -x "$2/cmake/all_headers" ] || "$2/cmake/all_headers"
    "$2/cmake/icons"
    runs_until_stopped "$2/cmake/example"
}

builds_with_pkg_config() {
    echo "== pkg-config"
    local PKG_CONFIG_PATH
    PKG_CONFIG_PATH=$(dirname "$(find "$3" -name "$package.pc")")
    export PKG_CONFIG_PATH
    [ "$(pkg-config --modversion "$package")" = 1.2 ]
    # shellcheck disable=SC2046,SC2086
    ${CXX:-c++} -std=c++17 -fPIC ${CXXFLAGS:-} "$1/main.cpp" -o "$2/example" \
        $(pkg-config --cflags --libs "$package") -Wl,-rpath,"$(pkg-config --variable=libdir "$package")"
    runs_until_stopped "$2/example"
}

builds_with_qmake() {
    echo "== qmake"
    local QMAKEPATH
    QMAKEPATH=$(dirname "$(dirname "$(dirname "$(find "$3" -name "qt_lib_$package.pri")")")")
    export QMAKEPATH
    mkdir -p "$2/qmake"
    (
        cd "$2/qmake" || exit
        "/usr/lib/qt$qt/bin/qmake" "QMAKE_CXXFLAGS+=${CXXFLAGS:-}" "QMAKE_LFLAGS+=${CXXFLAGS:-}" "$1/example.pro" >/dev/null
        make -s
    )
    runs_until_stopped "$2/qmake/example"
}
