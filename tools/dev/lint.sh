#!/usr/bin/env bash
# check the sources: warnings, format, clazy, clang-tidy, cppcheck, shellcheck
#
# usage: ./dev lint [--quick] [CHECKER...]
#
#   --quick  clazy and clang-tidy read the library alone, as continuous integration has them do
#   CHECKER  rules, format, shell, warnings, cppcheck, clazy or tidy; all of them by default
#
# The last line says whether the sources are clean.

checkers=(rules format shell warnings cppcheck clazy tidy)
CLANG_READS=(src platform gallery designer docs)
case "${1:-}" in
    --quick) CLANG_READS=(src); shift ;;
    -*) unknown_option lint "$1" ;;
esac
for checker in "$@"; do
    [[ " ${checkers[*]} " == *" $checker "* ]] || die "lint: unknown checker '$checker'"
done
[ $# -eq 0 ] || checkers=("$@")

. "$DEV_ROOT/tools/lib/lint.sh"

need_packages build test lint
findings=()
for checker in "${checkers[@]}"; do
    echo "== $checker"
    "lint_$checker" || findings+=("$checker")
done
[ ${#findings[@]} -eq 0 ] || { echo "lint: findings of ${findings[*]}"; exit 1; }
echo "lint: clean"
