#!/usr/bin/env bash
# measure what the widgets cost beside stock widgets and bare drawing
#
# usage: ./dev bench [--filter REGEX] [--accept]
#
#   --filter REGEX  only the rows of the table whose names match, and nothing else
#   --accept        write the tables into docs/benchmarks.md
#
# Prints the tables and writes them to build/bench/table.md. Instructions are counted with callgrind, so
# they repeat; times are interleaved medians of one run. On a busy machine it takes half an hour.

filter=
document=
while [ $# -gt 0 ]; do
    case "$1" in
        --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
        --filter) filter=$(option_value bench "$1" $# "${2:-}"); shift ;;
        --accept) document=docs/benchmarks.md ;;
        *) unknown_option bench "$1" ;;
    esac
    shift
done
[ -z "$filter" ] || [ -z "$document" ] || die "bench: --accept is for the whole table, not for a part of it"

need_packages build bench
build bench platform_bench platform_bench_loading
. "$DEV_ROOT/tools/lib/bench.sh"
results=build/bench/results
rm -rf "$results"
mkdir -p "$results"

measure_rows build/bench/bench/platform_bench "$results" "$filter"
if [ -z "$filter" ]; then
    measure_browsing build/bench/bench/platform_bench "$results"
    measure_rest build/bench/bench/platform_bench "$results"
    measure_library build/bench/src/libplatform_widgets.so.1.2 build/bench/bench/platform_bench_loading "$results"
    note_run "$results"
fi
python3 tools/bench/table.py "$results" $document | tee build/bench/table.md
