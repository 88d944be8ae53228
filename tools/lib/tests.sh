# Runs the test suite of a build and counts over all builds.

passed=0
failed=0
failures=() # "PRESET NAME"

# run_tests PRESET [REGEX]: runs the tests whose names match; a build may have none of them.
run_tests() {
    local preset=$1 filter=${2:-} log=$DEV_ROOT/build/$1/test.log count name
    # Many tests wait for a window or a timer.
    ctest --preset "$preset" --parallel $((2 * $(nproc))) ${filter:+-R "$filter"} 2>&1 | tee "$log" || true
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
