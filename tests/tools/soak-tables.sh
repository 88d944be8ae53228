#!/usr/bin/env bash
# The tables of ./dev soak, from lines as its programs print them.
#
# usage: soak-tables.sh SOURCE_DIR
set -euo pipefail

. "$1/tools/lib/soak-tables.sh"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cat >"$scratch/log" <<'END'
frame: 3000 commands from seed 7, 4 s, 0 failures
QINFO  : tst_LongLife::nothingPilesUp(focus cycles) 400 iterations, before: 30 objects, 1 timers, 7 files, 100 bytes in use, 1000 bytes resident
QINFO  : tst_LongLife::nothingPilesUp(focus cycles) 400 iterations, after:  31 objects, 2 timers, 8 files, 101 bytes in use, 1001 bytes resident
PASS   : tst_LongLife::nothingPilesUp(focus cycles)
END

# shows TABLE LINE: the table has that line.
shows() {
    "$1" <"$scratch/log" | grep -qxF -- "$2" || { echo "FAIL: $1 does not print '$2'" >&2; exit 1; }
}
shows random_use_table '| `frame` | 3000 | 7 | 4 | 0 |'
shows long_life_table '| focus cycles | 400 | 30 | 31 | 1 | 2 | 7 | 8 | 100 | 101 | 1000 | 1001 |'
