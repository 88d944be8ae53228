#!/usr/bin/env bash
# break the library in many small ways and list those that no test notices
#
# usage: ./dev mutants [OPTION...]
#
#   --file TEXT    only sources with TEXT in their path
#   --sample N     only every Nth mutant
#   --minutes N    stop after that time; the next run goes on from there
#   --jobs N       mutants at the same time, 2 by default
#   --report       try nothing out, list what is known
#   --accept       keep the counts as docs/figures/mutants.md
#
# A mutant that changes nothing observable has a mark above its line, with the reason.

case "${1:-}" in
esac
arguments=("$@")
while [ $# -gt 0 ]; do
    case "$1" in
        --file | --sample | --minutes | --jobs) option_value mutants "$1" $# "${2:-}" >/dev/null; shift ;;
        --report | --accept) ;;
        *) unknown_option mutants "$1" ;;
    esac
    shift
done

need_packages build test mutants
exec python3 "$DEV_ROOT/tools/mutants/mutants.py" ${arguments[@]+"${arguments[@]}"}
