#!/usr/bin/env bash
# build and run the whole test suite, plain and with the sanitizers
#
# usage: ./dev test [--qt VERSION] [--preset PRESET] [--filter REGEX]
#
#   --qt VERSION     with Qt 5 (the default) or 6
#   --preset PRESET  run one build only: dev, asan or, with Qt 5, coverage
#   --filter REGEX   run the tests whose names match
#
# What fails is shown again at the end, with the command that runs it once more. The last line counts the
# tests over all builds: N passed, N failed

presets=(dev asan)
lists=(build test)
filter=
qt=5
while [ $# -gt 0 ]; do
    case "$1" in
        --qt) qt=$(option_value test "$1" $# "${2:-}"); shift ;;
        --preset) presets=("$(option_value test "$1" $# "${2:-}")"); shift ;;
        --filter) filter=$(option_value test "$1" $# "${2:-}"); shift ;;
        *) unknown_option test "$1" ;;
    esac
    shift
done
for preset in "${presets[@]}"; do
    case "$preset" in
        dev | asan | coverage) ;;
        *) die "test: unknown preset '$preset'" ;;
    esac
done
case "$qt" in
    5) ;;
    6)
        [[ " ${presets[*]} " != *" coverage "* ]] || die "test: coverage is measured with Qt 5"
        presets=("${presets[@]/%/-qt6}")
        lists+=(qt6 test-qt6)
        ;;
    *) die "test: Qt is 5 or 6, not '$qt'" ;;
esac

check_preconditions "${presets[@]}"
export LC_ALL=C.UTF-8 # a path may have any letter in it
start_stages test $((2 + ${#presets[@]}))
stage "the packages that are needed" need_packages "${lists[@]}"
for preset in "${presets[@]}"; do
    stage "building ($preset)" build "$preset"
done
stage "testing (${presets[*]})" run_tests "$filter" "${presets[@]}"
print_test_count
