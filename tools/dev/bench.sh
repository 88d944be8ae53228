#!/usr/bin/env bash
# measure what the widgets cost beside Qt counterparts and bare drawing
#
# usage: ./dev bench [--filter REGEX] [--peers] [--accept]
#
#   --filter REGEX  only the rows of the table whose names match, and nothing else
#   --peers         only the rows beside widgets of other libraries, whose packages it installs
#   --accept        keep the tables as docs/figures/benchmarks.md
#
# Prints the tables and writes them to table.md in the folder of the build. Instructions are counted with
# callgrind, so they repeat; times are interleaved medians of one run.

preset=bench
packages=(build bench)
filter=
accept=
while [ $# -gt 0 ]; do
    case "$1" in
        --filter) filter=$(option_value bench "$1" $# "${2:-}"); shift ;;
        --peers) preset=bench-peers packages+=(peers) filter=^peers: ;;
        --accept) accept=yes ;;
        *) unknown_option bench "$1" ;;
    esac
    shift
done
[ -z "$filter" ] || [ -z "$accept" ] || die "bench: --accept is for the whole table, not for a part of it"

need_packages "${packages[@]}"
build "$preset" platform_bench platform_bench_loading platform_bench_ours platform_bench_counterparts
. "$DEV_ROOT/tools/lib/bench.sh"
build=build/$preset
program=$build/bench/platform_bench
results=$build/results
rm -rf "$results"
mkdir -p "$results"

measure_rows "$program" "$results" "$filter"
if [ -z "$filter" ]; then
    measure_processes "$build/bench" "$results"
    measure_browsing "$program" "$results"
    measure_idle "$program" "$results"
    measure_loading "$build/bench/platform_bench_loading" "$results"
    measure_library "$build/src/libplatform_widgets.so.1.2" "$results"
    note_run "$results"
fi
python3 tools/bench/table.py "$results" | tee "$build/table.md"
[ -z "$accept" ] || accept_figures benchmarks "./dev bench --accept" <"$build/table.md"
