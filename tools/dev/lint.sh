#!/usr/bin/env bash
# check the sources: warnings, format, clazy, clang-tidy, cppcheck, shellcheck
#
# usage: ./dev lint [CHECKER...]
#
#   CHECKER  rules, format, shell, warnings, cppcheck, clazy or tidy; all of them by default
#
# The last line says whether the sources are clean.

checkers=(rules format shell warnings cppcheck clazy tidy)
case "${1:-}" in
    --help) print_usage "${BASH_SOURCE[0]}"; exit ;;
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
