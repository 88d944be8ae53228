#!/usr/bin/env bash
# Tests that the search of the reference keeps the library's own names and drops Qt's.
#
# usage: search-results.sh SOURCE_DIR
set -euo pipefail

source_dir=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir "$scratch/search"
cat >"$scratch/search/all_0.js" <<'END'
var searchData=
[
  ['abort_0',['abort',['https://doc.qt.io/qt-5/qdialog.html#abort',1,'QDialog::abort()'],['https://doc.qt.io/qt-5/a.html#abort',1,'A::abort(int [2], char)']]],
  ['animator_1',['Animator',['../classAnimator.html',1,'']]],
  ['angle_2',['angle',['https://doc.qt.io/qt-5/b.html',1,'B'],['../classui_1_1C.html#a1',1,'ui::C::angle()'],['https://doc.qt.io/qt-5/c.html',1,'C']]],
  ['append_3',['append',['https://doc.qt.io/qt-5/qlist.html#append',1,'QList']]]
];
END
cat >"$scratch/expected" <<'END'
var searchData=
[
  ['animator_1',['Animator',['../classAnimator.html',1,'']]],
  ['angle_2',['angle',['../classui_1_1C.html#a1',1,'ui::C::angle()']]],
];
END

cmake -D HTML="$scratch" -P "$source_dir/docs/OwnSearchResults.cmake"
diff "$scratch/expected" "$scratch/search/all_0.js"
