#!/usr/bin/env bash
# The measuring programs, on a few rows: every measurement fills its table.
#
# usage: bench-program.sh SOURCE_DIR PLATFORM_BENCH PLATFORM_BENCH_LOADING
set -euo pipefail

DEV_ROOT=$1
program=$2
loader=$3
results=$(mktemp -d)
trap 'rm -rf "$results"' EXIT

die() {
    echo "FAIL: $*" >&2
    exit 1
}

. "$DEV_ROOT/tools/lib/bench.sh"
timing=("${timing[@]/repetitions=*/repetitions=2}")
timing=("${timing[@]/min_time=*/min_time=0.0001}")
file_counts=(3)
repetitions=1
idle=100
processes='an empty window'

measure_rows "$program" "$results" '^frame, plain|^keypad, later|1000 of CRoundedFrame, made'
measure_processes "$(dirname "$program")" "$results"
measure_browsing "$program" "$results"
measure_idle "$program" "$results"
library=$(ldd "$program" | sed -n 's/.*=> \(.*libplatform_widgets[^ ]*\).*/\1/p')
measure_loading "$loader" "$results"
measure_library "$library" "$results"
note_run "$results"
"$DEV_ROOT/tools/bench/table.py" "$results" >"$results/table.md"

# shows REGEX: a line of the tables matches.
shows() {
    grep -qE "$1" "$results/table.md" || die "no line matches '$1':"$'\n'"$(cat "$results/table.md")"
}

figure='[0-9,.]+'
shows "^\| own instructions by the baseline's \| frame, plain \| $figure \| 1.05 \| (yes|no) \|"
shows "^\| frame, plain \| QFrame with a style sheet( \| $figure){11} \|$"
shows "^\| keypad, later opening( \| [^|]*)( \| $figure){7} \|$"
shows "^\| 1000 of CRoundedFrame, made \| QFrame( \| $figure){9} \|$"
shows "^\| an empty window( \| $figure){7} \|$"
for way in "a bare model and list view" FileBrowserWidget QFileDialog; do
    shows "^\| 3 \| $way( \| $figure){5} \|$"
done
# With Qt 6 a progress bar paints again for the same value.
[[ "$library" == */libplatform_widgets6.* ]] && again=3200 || again=0
shows "^\| battery, the same charge again \| QProgressBar \| 3200 \| 0 \| $again \|$"
shows "^\| 100 \| $figure \| $figure \|$"
shows "^\| relocations \| $figure \|$"
shows "^\| loading and unloading the library \| $figure instructions \|$"
shows "^\| loading and unloading the library \| $figure µs \|$"

if (measure_rows "$program" "$results" 'no such row') 2>"$results/err"; then
    die "a filter that matches nothing is accepted"
fi
grep -q "no row matches 'no such row'" "$results/err" || die "it says: $(cat "$results/err")"
