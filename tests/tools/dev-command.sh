#!/usr/bin/env bash
# The command line of ./dev: help, errors, and what it installs when packages are missing.
#
# usage: dev-command.sh SOURCE_DIR
set -euo pipefail

source_dir=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# refuses TEXT ARGUMENT...: ./dev fails and says TEXT on its error channel.
refuses() {
    local text=$1
    shift
    if "$source_dir/dev" "$@" >"$scratch/out" 2>"$scratch/err"; then
        fail "./dev $* succeeded"
    fi
    grep -qF -- "$text" "$scratch/err" || fail "./dev $* said: $(cat "$scratch/err")"
}

# Every command has one line of help, and help of its own.
"$source_dir/dev" help >"$scratch/help"
for file in "$source_dir"/tools/dev/*.sh; do
    command=$(basename "$file" .sh)
    grep -qE "^  $command +[a-z]" "$scratch/help" || fail "help does not describe $command"
    "$source_dir/dev" "$command" --help | grep -q "^usage: ./dev $command" || fail "$command has no help"
done

for help in "help test" "test -h"; do
    # shellcheck disable=SC2086 # two words
    "$source_dir/dev" $help | grep -q '^usage: ./dev test' || fail "./dev $help does not help"
done
ln -s "$source_dir/dev" "$scratch/link"
"$scratch/link" help >"$scratch/help" || fail "./dev cannot be called by a link"

refuses "unknown command 'frobnicate'" frobnicate
refuses "unknown command 'frobnicate'" help frobnicate
refuses "unknown option '--frobnicate'" gallery --frobnicate
refuses "unknown user 'somebody'" fresh --as somebody
refuses "--run needs a value" fresh --as root --run
refuses "unknown command '../lib/common'" ../lib/common
refuses "unknown option '--frobnicate'" test --frobnicate
refuses "unknown preset 'fast'" test --preset fast
refuses "unknown preset 'fast'" build fast
refuses "Qt is 5 or 6, not '4'" test --qt 4
refuses "coverage is measured with Qt 5" test --qt 6 --preset coverage
refuses "--filter needs a value" test --filter
refuses "unknown checker 'frob'" lint frob
refuses "unknown option '--frob'" mutants --frob
refuses "--file needs a value" mutants --file
refuses "--filter needs a value" bench --filter
refuses "--accept is for the whole table" bench --accept --filter frame
refuses "unknown option '--frob'" soak --frob
refuses "--seed needs a value" soak --seed
refuses "not a number: 'many'" soak --commands many
refuses "too many arguments" abi --accept --accept

# What is refused before minutes are spent.
has_precondition() {
    # shellcheck disable=SC2016 # the inner shell expands it
    env DEV_ROOT="$scratch/checkout" bash -c '. "$1/tools/lib/common.sh" && cd "$DEV_ROOT" && check_preconditions dev' \
        bash "$scratch/checkout" 2>"$scratch/err"
}
mkdir -p "$scratch/checkout/build/dev"
cp -r "$source_dir/tools" "$scratch/checkout/tools"
has_precondition || fail "refused: $(cat "$scratch/err")"
echo "CMAKE_HOME_DIRECTORY:INTERNAL=/elsewhere" >"$scratch/checkout/build/dev/CMakeCache.txt"
! has_precondition || fail "a moved checkout was accepted"
grep -q 'made for a checkout in /elsewhere; delete it with' "$scratch/err" || fail "said: $(cat "$scratch/err")"
rm -r "$scratch/checkout/build"
touch "$scratch/checkout/build" # root may write to a folder whose permissions say otherwise
! has_precondition || fail "a checkout without a place for the build was accepted"
grep -q 'cannot write to' "$scratch/err" || fail "said: $(cat "$scratch/err")"

# A stage tells its number, keeps the output in the log, and shows it when it fails.
mkdir -p "$scratch/stages/build"
cp -r "$source_dir/tools" "$scratch/stages/tools"
# shellcheck disable=SC2016 # the inner shell expands it
if env DEV_ROOT="$scratch/stages" bash -c '. "$1/tools/lib/common.sh"; start_stages try 2
        stage quiet echo one; stage loud bash -c "echo two; exit 3"; echo not reached' \
        bash "$scratch/stages" >"$scratch/out" 2>"$scratch/err"; then
    fail "a failed stage was taken for a success"
fi
grep -qE '^1 of 2: quiet: [0-9]+ s$' "$scratch/err" || fail "stages said: $(cat "$scratch/err")"
grep -q '^two$' "$scratch/err" || fail "stages said: $(cat "$scratch/err")"
grep -q 'all of it is in build/try.log$' "$scratch/err" || fail "stages said: $(cat "$scratch/err")"
grep -q '^one$' "$scratch/stages/build/try.log" || fail "the log is not complete"
[ ! -s "$scratch/out" ] || fail "printed: $(cat "$scratch/out")"

# Missing packages, with a stand-in for each system tool. The log shows what would be installed.
mkdir "$scratch/bin"
cat >"$scratch/bin/dpkg-query" <<END
#!/bin/sh
for package; do :; done
grep -qxF "\$package" "$scratch/installed" && printf installed
END
cat >"$scratch/bin/apt-get" <<END
#!/bin/sh
echo "apt-get \$*" >>"$scratch/log"
END
cat >"$scratch/bin/id" <<END
#!/bin/sh
cat "$scratch/uid"
END
chmod +x "$scratch/bin"/*

need_build_packages() {
    : >"$scratch/log"
    # shellcheck disable=SC2016 # the inner shell expands it
    env PATH="$1" DEV_ROOT="$source_dir" bash -c \
        'set -euo pipefail; . "$DEV_ROOT/tools/lib/common.sh"; need_packages build' 2>"$scratch/err"
}
with_tools="$scratch/bin:$PATH"

sed 's/#.*//; /^$/d' "$source_dir/tools/packages/build.txt" >"$scratch/installed"
echo 1000 >"$scratch/uid"
need_build_packages "$with_tools" || fail "all packages are there, yet: $(cat "$scratch/err")"
[ ! -s "$scratch/log" ] || fail "nothing is missing, yet: $(cat "$scratch/log")"

sed -i '/^ninja-build$/d' "$scratch/installed"
echo 0 >"$scratch/uid"
need_build_packages "$with_tools" || fail "root could not install: $(cat "$scratch/err")"
grep -q 'apt-get install .* ninja-build$' "$scratch/log" || fail "installed: $(cat "$scratch/log")"

# Neither root nor sudo: it says what is missing.
mkdir "$scratch/no-sudo"
for tool in bash env sed cat grep; do
    ln -s "$(command -v "$tool")" "$scratch/no-sudo/$tool"
done
echo 1000 >"$scratch/uid"
if need_build_packages "$scratch/bin:$scratch/no-sudo"; then
    fail "a user without sudo installed packages"
fi
grep -q 'only root can install them: ninja-build' "$scratch/err" || fail "said: $(cat "$scratch/err")"

# With sudo, it is asked.
cat >"$scratch/no-sudo/sudo" <<END
#!/bin/sh
echo "sudo \$*" >>"$scratch/log"
END
chmod +x "$scratch/no-sudo/sudo"
need_build_packages "$scratch/bin:$scratch/no-sudo" || fail "sudo was refused: $(cat "$scratch/err")"
grep -q '^sudo .*install .* ninja-build$' "$scratch/log" || fail "sudo ran: $(cat "$scratch/log")"
