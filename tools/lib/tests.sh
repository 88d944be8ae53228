# Runs the test suite of a build and counts over all builds.

passed=0
failed=0

# run_tests PRESET [REGEX]: runs the tests whose names match.
run_tests() {
    local preset=$1 filter=${2:-} log=build/$1/test.log count
    ctest --preset "$preset" ${filter:+-R "$filter"} 2>&1 | tee "$log" || true
    count=$(sed -nE 's/.* ([0-9]+) tests? failed out of ([0-9]+)$/\1 \2/p' "$log" | tail -n 1)
    [ -n "$count" ] || die "no test was run with preset $preset"
    failed=$((failed + ${count% *}))
    passed=$((passed + ${count#* } - ${count% *}))
}

# Prints the line that ends every test run; fails when a test did.
print_test_count() {
    echo "$passed passed, $failed failed"
    [ "$failed" -eq 0 ]
}
