# The tables of ./dev soak, from what its programs print. Sourced, never run.

random_use_table() {
    printf '| Model | Commands | Seed | Seconds | Failures |\n|---|--:|--:|--:|--:|\n'
    sed -nE 's/^([a-z]+): ([0-9]+) commands from seed ([0-9]+), ([0-9]+) s, ([0-9]+) failures$/| `\1` | \2 | \3 | \4 | \5 |/p'
}

long_life_table() {
    local figure
    printf '| Workload | Iterations'
    for figure in Objects Timers Files Heap Resident; do
        printf ' | %s before | after' "$figure"
    done
    printf ' |\n|---|'
    printf -- '--:|%.0s' {1..11}
    printf '\n'
    # The two lines of a workload, before and after, carry the same figures in the same order.
    sed -nE 's/^QINFO +: tst_LongLife::[A-Za-z]+\(([^)]*)\) ([0-9]+) iterations, (before|after): *([0-9]+) objects, ([0-9]+) timers, ([0-9]+) files, ([0-9]+) bytes in use, ([0-9]+) bytes resident.*/\1|\2|\4|\5|\6|\7|\8/p' |
        awk -F'|' 'NR % 2 { split($0, before, "|"); next }
            { printf "| %s | %s", $1, $2; for (i = 3; i <= 7; ++i) printf " | %s | %s", before[i], $i; print " |" }'
}
