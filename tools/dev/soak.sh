#!/usr/bin/env bash
# drive every widget by a million random commands, and live through an hour of use
#
# usage: ./dev soak [--commands N] [--widget NAME] [--seed N] [--sanitize] [--accept]
#
#   --commands N   that many commands for each widget; a million by default
#   --widget NAME  one widget only; "together" is all of them in one window
#   --seed N       other commands; 1 by default
#   --sanitize     build with the sanitizers in place of the optimiser
#   --accept       keep the figures in docs/figures/
#
# Prints a line for each widget. Of a failure it prints the fewest commands found that do the same.
# Without --widget, every workload of an hour follows, for a tenth as many iterations as commands: what the
# process holds before and after.

commands=1000000
widget=
seed=1
preset=soak
accept=
suffix=
while [ $# -gt 0 ]; do
    case "$1" in
        --commands) commands=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --widget) widget=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --seed) seed=$(option_value soak "$1" $# "${2:-}"); shift ;;
        --sanitize) preset=asan suffix=-sanitized ;;
        --accept) accept=yes ;;
        *) unknown_option soak "$1" ;;
    esac
    shift
done
for number in "$commands" "$seed"; do
    [[ "$number" =~ ^[0-9]+$ ]] || die "soak: not a number: '$number'"
done

need_packages build test
build "$preset" soak tst_LongLife
programs=build/$preset/tests
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 LC_ALL=C.UTF-8
export LSAN_OPTIONS="suppressions='$DEV_ROOT/tests/support/lsan.supp':print_suppressions=0"

[ -z "$widget" ] || [ -z "$accept" ] || die "soak: --accept is for all widgets, not for one"
log=$programs/soak.log
: >"$log"
failed=0
for name in ${widget:-$("$programs/randomuse/soak" --list)}; do
    "$programs/randomuse/soak" --search "$name" "$seed" "$commands" | tee -a "$log" || failed=1
done
# Qt ends a test function after five minutes else.
export QTEST_FUNCTION_TIMEOUT=2000000000
if [ -z "$widget" ]; then
    PLATFORM_LONG_LIFE=$((commands < 10 ? 1 : commands / 10)) "$programs/themes/tst_LongLife" | tee -a "$log" || failed=1
fi
if [ -n "$accept" ]; then
    . "$DEV_ROOT/tools/lib/soak-tables.sh"
    command="./dev soak${suffix:+ --sanitize} --accept"
    random_use_table <"$log" | accept_figures "random-use$suffix" "$command"
    [ -n "$suffix" ] || long_life_table <"$log" | accept_figures long-life "$command"
fi
exit "$failed"
