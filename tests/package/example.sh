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
