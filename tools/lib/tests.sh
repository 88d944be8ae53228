# Runs the test suite of a build and counts over all builds.

passed=0
failed=0
failures=() # "PRESET NAME"

# run_tests REGEX PRESET...: runs the tests whose names match, of all builds at once; a build may have none.
run_tests() {
    local filter=$1 preset running=()
    shift
    # Many tests wait for a window or a timer.
    local jobs=$((2 * $(nproc) / $# + $# - 1))
    for preset; do
        ctest --preset "$preset" --parallel "$jobs" ${filter:+-R "$filter"} 2>&1 \
            | tee "$DEV_ROOT/build/$preset/test.log" &
        running+=($!)
    done
    wait "${running[@]}"
    for preset; do
        count_tests "$preset" || return 1
    done
}

# Adds what a build's tests came to.
count_tests() {
    local preset=$1 log=$DEV_ROOT/build/$1/test.log count name
    ! grep -q '^No tests were found' "$log" || return 0
    count=$(sed -nE 's/.* ([0-9]+) tests? failed out of ([0-9]+)$/\1 \2/p' "$log" | tail -n 1)
    [ -n "$count" ] || return 1
    failed=$((failed + ${count% *}))
    passed=$((passed + ${count#* } - ${count% *}))
    while IFS= read -r name; do
        failures+=("$preset $name")
    done < <(sed -nE 's/^[[:space:]]+[0-9]+ - ([^ ]+) \(.*/\1/p' "$log")
}

# What a failed test printed, as CTest passes it on.
output_of_test() {
    awk -v name="$2" '
        /^ *[0-9]+\/[0-9]+ Test +#[0-9]+: / {inside = $0 ~ "#[0-9]+: " name " "}
        /^ +Start +[0-9]+: / {inside = 0}
        inside' "$DEV_ROOT/build/$1/test.log" | grep -v '^PASS   :' | tail -n 40
}

# The options of ./dev test for a build.
options_of() {
    case "$1" in
        *-qt6) echo "--qt 6 --preset ${1%-qt6}" ;;
        *) echo "--preset $1" ;;
    esac
}

# Prints the line that ends every test run, the failures before it; fails when a test did.
print_test_count() {
    local failure name
    for failure in ${failures[@]+"${failures[@]}"}; do
        name=${failure#* }
        output_of_test "${failure% *}" "$name" >&2
        echo "Once more: ./dev test $(options_of "${failure% *}") --filter '^${name//./\\.}\$'" >&2
    done
    [ $((passed + failed)) -gt 0 ] || die "no test matches"
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
}
