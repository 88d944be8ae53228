# What ./dev bench measures. Each function takes the program and the folder for the results.

export QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 QT_LOGGING_RULES='*.debug=false'

timing=(
    --benchmark_enable_random_interleaving=true
    --benchmark_repetitions=9
    --benchmark_min_time=0.02
    --benchmark_report_aggregates_only=true
    --benchmark_out_format=json
)

file_counts=(100 10000 100000)
repetitions=5
idle=5000 # milliseconds
processes=. # those whose names match

# under_callgrind OUT COMMAND...: counts only where the command asks for it.
under_callgrind() {
    local out=$1
    shift
    valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$out" "$@" >"$out.log" 2>&1
}

# measure_rows PROGRAM RESULTS [REGEX]
measure_rows() {
    local program=$1 results=$2 filter=${3:-}
    "$program" --rows "$filter" >"$results/rows"
    [ "$(wc -l <"$results/rows")" -gt 1 ] || die "bench: no row matches '$filter'"
    "$program" --allocations "$filter" >"$results/allocations" 2>"$results/log"
    "$program" --time "$filter" "${timing[@]}" --benchmark_out="$results/times.json" \
        >"$results/times.txt" 2>>"$results/log"
    under_callgrind "$results/callgrind" "$program" --count "$filter"
}

# measure_processes FOLDER RESULTS: from the start of a process to its first frame.
measure_processes() {
    local programs=$1 results=$2 files scenario column run number=0
    files=$(mktemp -d)
    (cd "$files" && seq 15 | xargs touch --)
    "$programs/platform_bench_ours" | grep "$processes" | while IFS= read -r scenario; do
        for column in ours counterpart; do
            run=("$programs/platform_bench_${column/counterpart/counterparts}" "$scenario" "$scenario|$column" "$files")
            "${run[@]}" >>"$results/processes" 2>>"$results/log"
            valgrind --tool=callgrind --callgrind-out-file="$results/callgrind-process-$((number += 1))" \
                "${run[@]}" >/dev/null 2>>"$results/log" </dev/null
        done
    done
    rm -rf "$files"
}

# Each opening in a process of its own, and the ways interleaved.
measure_browsing() {
    local program=$1 results=$2 files count way repetition
    for count in "${file_counts[@]}"; do
        files=$(mktemp -d)
        (cd "$files" && seq -f 'file-%.0f' "$count" | xargs touch --)
        for ((repetition = 0; repetition < repetitions; ++repetition)); do
            for way in bare ours dialog; do
                printf '%s\t%s\t' "$count" "$way"
                "$program" --browse "$way" "$files" "$count" 2>>"$results/log"
            done
        done
        rm -rf "$files"
    done >"$results/browsing"
}

measure_idle() {
    "$1" --damage >"$2/damage" 2>>"$2/log"
    "$1" --idle "$idle" >"$2/idle" 2>>"$2/log"
}

# measure_loading LOADER RESULTS
measure_loading() {
    local loader=$1 results=$2
    "$loader" "${timing[@]}" --benchmark_out="$results/times-loading.json" >>"$results/times.txt" 2>>"$results/log"
    under_callgrind "$results/callgrind-loading" "$loader" --count
}

# measure_library LIBRARY RESULTS
measure_library() {
    local library=$1 results=$2
    strip -o "$results/stripped" "$library"
    {
        printf 'bytes, stripped\t%s\n' "$(stat -c %s "$results/stripped")"
        printf 'relocations\t%s\n' "$(readelf -rW "$library" | grep -c ' R_')"
        printf 'exported symbols\t%s\n' "$(nm -D --defined-only "$library" | wc -l)"
    } >>"$results/facts"
}

# note_run RESULTS: on what the figures were taken, and how busy it was.
note_run() {
    {
        printf 'processor\t%s\n' "$(sed -n 's/^model name.*: //p' /proc/cpuinfo | sort | uniq -c | sed 's/^ *\([0-9]*\) /\1 × /')"
        printf 'load average at the end of the run\t%s\n' "$(cut -d' ' -f1-3 /proc/loadavg)"
        printf 'duration of the run\t%s minutes\n' "$((SECONDS / 60))"
    } >>"$1/facts"
}
