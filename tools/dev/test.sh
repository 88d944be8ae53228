#!/usr/bin/env bash
# build and run the whole test suite, plain and with the sanitizers
#
# usage: ./dev test [--preset PRESET] [--filter REGEX]
#
#   --preset PRESET  run one build only: dev, asan or coverage
#   --filter REGEX   run the tests whose names match
#
# What fails is shown again at the end, with the command that runs it once more. The last line counts the
# tests over all builds: N passed, N failed

presets=(dev asan)
filter=
while [ $# -gt 0 ]; do
    case "$1" in
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

check_preconditions "${presets[@]}"
export LC_ALL=C.UTF-8 # a path may have any letter in it
start_stages test $((1 + 2 * ${#presets[@]}))
stage "the packages that are needed" need_packages build test
for preset in "${presets[@]}"; do
    stage "building ($preset)" build "$preset"
    stage "testing ($preset)" run_tests "$preset" "$filter"
done
print_test_count
