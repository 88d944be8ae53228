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
