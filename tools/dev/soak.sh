#!/usr/bin/env bash
# drive every widget by a million random steps, and live through an hour of use
#
# usage: ./dev soak [--steps N] [--widget NAME] [--seed N] [--sanitize]
#
#   --steps N      that many steps for each widget; a million by default
#   --widget NAME  one widget only; "together" is all of them in one window
#   --seed N       other steps; 1 by default
#   --sanitize     build with the sanitizers in place of the optimiser
#
# Prints a line for each widget. Of a failure it prints the fewest steps found that do the same.
# Without --widget, every use of an hour follows, for a tenth as many rounds as steps: what the process
# holds before and after.

steps=1000000
widget=
seed=1
preset=soak
while [ $# -gt 0 ]; do
    case "$1" in
        --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
        --steps) steps=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --widget) widget=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --seed) seed=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --sanitize) preset=asan ;;
        *) unknown_option soak "$1" ;;
    esac
    shift
done
for number in "$steps" "$seed"; do
    [[ "$number" =~ ^[0-9]+$ ]] || die "soak: not a number: '$number'"
done

need_packages build test
build "$preset" soak tst_LongLife
programs=build/$preset/tests
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 LC_ALL=C.UTF-8
export LSAN_OPTIONS=suppressions=$DEV_ROOT/tests/support/lsan.supp:print_suppressions=0

failed=0
for name in ${widget:-$("$programs/randomuse/soak" --list)}; do
    "$programs/randomuse/soak" --search "$name" "$seed" "$steps" || failed=1
done
# Qt ends a test function after five minutes else.
export QTEST_FUNCTION_TIMEOUT=2000000000
if [ -z "$widget" ]; then
    PLATFORM_LONG_LIFE=$((steps < 10 ? 1 : steps / 10)) "$programs/themes/tst_LongLife" || failed=1
fi
exit "$failed"
