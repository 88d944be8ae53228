#!/usr/bin/env bash
# Checks that a translation has every text of the sources, finished, and no other: ./dev translate
# would change nothing in it.
#
# usage: translations.sh SOURCE_DIR LANGUAGE
set -euo pipefail

cd "$1"
language=$2
translation=gallery/translations/gallery_$language.ts
. tools/lib/translations.sh

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
updated=$scratch/${translation##*/}
cp "$translation" "$updated"
update_translation "$language" "$updated"

diff -u "$translation" "$updated" || { echo "$translation is out of date: run ./dev translate"; exit 1; }
! grep -B 1 'type="' "$translation" || { echo "$translation has texts that are not translated"; exit 1; }
echo "$translation: $(grep -c '</source>' "$translation") texts, all translated"
