# Figures that only a run can give, one file for each command that measures them. Sourced, never run.

# accept_figures NAME COMMAND: what comes on the standard input, in docs/figures/NAME.md from now on.
accept_figures() {
    local file=$DEV_ROOT/docs/figures/$1.md
    { printf '<!-- Written by %s: the next run replaces it. -->\n\n' "$2"; cat; } >"$file.new"
    mv "$file.new" "$file"
    echo "written: docs/figures/$1.md" >&2
}
