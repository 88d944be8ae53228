#!/usr/bin/env bash
# take new texts of the gallery and the keypad into their translation
#
# usage: ./dev translate [LANGUAGE]
#
#   LANGUAGE  de by default; another one, say fr or pt_BR, begins a new translation
#
# The translation is gallery/translations/gallery_LANGUAGE.ts. What is new in it is unfinished until a
# translator has filled it in, with Qt Linguist or an editor; texts that are gone are dropped. A new
# language becomes part of the gallery by its name in gallery/CMakeLists.txt.

case "${1:-}" in
    -*) unknown_option translate "$1" ;;
esac
[ $# -le 1 ] || die "translate: too many arguments"
language=${1:-de}
[[ "$language" =~ ^[a-z]{2,3}(_[A-Z]{2})?$ ]] || die "translate: '$language' is no language such as fr or pt_BR"

. "$DEV_ROOT/tools/lib/translations.sh"

need_packages build
translation=gallery/translations/gallery_$language.ts
update_translation "$language" "$translation"
echo "$translation: $(grep -c 'type="unfinished"' "$translation") texts to translate"
