#!/usr/bin/env bash
# build and run the whole test suite, plain and with the sanitizers
#
# usage: ./dev test [--preset PRESET] [--filter REGEX]
#
#   --preset PRESET  run one build only: dev, asan or coverage
#   --filter REGEX   run the tests whose names match
#
# The last line counts the test programs over all builds: N passed, N failed

presets=(dev asan)
filter=
while [ $# -gt 0 ]; do
    case "$1" in
        --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
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

need_packages build test
for preset in "${presets[@]}"; do
    build "$preset"
    run_tests "$preset" "$filter"
done
print_test_count
