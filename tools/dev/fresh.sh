#!/usr/bin/env bash
# run the README's commands on a fresh Debian 12, made for it in a folder
#
# usage: ./dev fresh [--as USER] [COMMAND...]
#        ./dev fresh [--as USER] --run LINE
#
#   --as USER   root, sudoer (a user who may become root) or guest (one who may not); all three by default
#   COMMAND     gallery or test: only that of the README's two commands
#   --run LINE  any other line, say "./dev docs", to see whether it installs all that it needs
#
# What is committed is cloned to a path with a space and an umlaut, on a root that has git and nothing
# else to build with. Prints for each command the packages that were missing, elapsed time and processor
# time. A guest has to be refused. Downloads and logs are kept in build/fresh; needs root.

users=(root sudoer guest)
other_line=
while [[ "${1:-}" == -* ]]; do
    case "$1" in
        --as) users=("$(option_value fresh "$1" $# "${2:-}")") ;;
        --run) other_line=$(option_value fresh "$1" $# "${2:-}") ;;
        *) unknown_option fresh "$1" ;;
    esac
    shift 2
done
for user in "${users[@]}"; do
    case "$user" in
        root | sudoer | guest) ;;
        *) die "fresh: unknown user '$user'" ;;
    esac
done
for name in "$@"; do
    [[ "$name" == gallery || "$name" == test ]] || die "fresh: unknown command '$name'"
done
[ "$(id -u)" -eq 0 ] || die "fresh: only root can make a root; run it with sudo"

need_packages fresh
. "$DEV_ROOT/tools/lib/sysroot.sh"
. "$DEV_ROOT/tools/lib/fresh.sh"

lines_to_try() {
    if [ -n "$other_line" ]; then
        echo "$other_line"
        return
    fi
    readme_commands | while IFS= read -r line; do
        [ $# -eq 0 ] || [[ " $* " == *" $(command_in "$line") "* ]] || continue
        echo "$line"
    done
}

failed=0
for user in "${users[@]}"; do
    make_fresh_root "$user"
    while IFS= read -r line; do
        try_command "$user" "$line" || failed=1
    done < <(lines_to_try "$@")
    drop_fresh_root "$user"
done
[ "$failed" -eq 0 ] || die "fresh: see the logs in build/fresh"
