#!/usr/bin/env bash
# run the tests and say which lines and branches of the library they reach
#
# usage: ./dev coverage [--no-run] [--accept]
#
#   --no-run  report on the last run
#   --accept  keep the figures as docs/figures/coverage.md
#
# The pages build/coverage/report/*.html show the sources with what was missed. Fails below 98 % of
# the lines or 90 % of the branches of src/ and include/. Left out are
# - branches that only an exception takes: out of memory is the one reason for it;
# - the code that moc and rcc generate;
# - lines marked GCOVR_EXCL with a reason; they are listed.

run=yes
accept=
while [ $# -gt 0 ]; do
    case "$1" in
        --no-run) run=no ;;
        --accept) accept=yes ;;
        *) unknown_option coverage "$1" ;;
    esac
    shift
done

need_packages build test coverage
if [ "$run" = yes ]; then
    build coverage
    find build/coverage -name '*.gcda' -delete
    ctest --preset coverage || die "coverage: the tests fail"
fi

echo "Left out by a mark:"
git grep -n GCOVR_EXCL -- src include || echo "nothing"
rm -rf build/coverage/report
mkdir -p build/coverage/report
# Tests that fork or run two at a time can leave a counter below zero; gcovr would stop at it.
gcovr --root . --object-directory build/coverage -j "$(nproc)" \
    --filter src/ --filter include/ \
    --exclude-throw-branches --exclude-unreachable-branches --gcov-ignore-parse-errors \
    --html-details build/coverage/report/index.html --txt build/coverage/report/lines.txt \
    --print-summary --fail-under-line 98 --fail-under-branch 90 >build/coverage/report/summary.txt \
    && status=0 || status=$?
cat build/coverage/report/lines.txt
grep -E '^(lines|branches):' build/coverage/report/summary.txt
[ -z "$accept" ] || grep -E '^(lines|branches):' build/coverage/report/summary.txt | sed 's/^/    /' |
    accept_figures coverage "./dev coverage --accept"
exit "$status"
