#!/usr/bin/env bash
# measure what the widgets cost beside stock widgets and bare drawing
#
# usage: ./dev bench
#
# Prints one table and writes it to build/bench/table.md. Instructions are counted with callgrind, so
# they repeat; times are interleaved medians of one run.

case "${1:-}" in
    --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
    "") ;;
    *) unknown_option bench "$1" ;;
esac

need_packages build bench
build bench platform_bench
program=build/bench/bench/platform_bench
results=build/bench/results
rm -rf "$results"
mkdir -p "$results"
export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96

"$program" --rows >"$results/rows"
"$program" --benchmark_enable_random_interleaving=true --benchmark_repetitions=9 --benchmark_min_time=0.02 \
    --benchmark_report_aggregates_only=true \
    --benchmark_out="$results/times.json" --benchmark_out_format=json >"$results/times.txt"
"$program" --allocations >"$results/allocations"
"$program" --browsing >"$results/browsing"
valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$results/callgrind" \
    "$program" --count >"$results/callgrind.log" 2>&1

# What loading the library costs.
library_facts() {
    local library=build/bench/src/libplatform_widgets.so.1.2 stripped=$results/stripped
    strip -o "$stripped" "$library"
    echo "| Library | |"
    echo "|---|--:|"
    echo "| size, stripped | $(stat -c %s "$stripped") bytes |"
    echo "| relocations | $(readelf -rW "$library" | grep -c ' R_') |"
    echo "| exported symbols | $(nm -D --defined-only "$library" | wc -l) |"
}

{
    python3 tools/bench/table.py "$results/rows" "$results/times.json" "$results/allocations" \
        "$results"/callgrind.*
    echo
    cat "$results/browsing"
    echo
    library_facts
} | tee build/bench/table.md
