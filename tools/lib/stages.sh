# Tells how far a command is. What its stages print goes into a log file; what is told goes to the error
# channel: one moving line in a terminal, plain lines elsewhere, and something every ten seconds.

readonly HEARTBEAT=10 # seconds

# start_stages COMMAND COUNT: a command of that many stages.
start_stages() {
    STAGE=0 STAGES=$2 LOG=$DEV_ROOT/build/$1.log
    : >"$LOG"
    tell "everything is written to build/$1.log"
}

tell() {
    printf '%s%s\n' "$CLEAR_LINE" "$*" >&3
}

# What clears the moving line, and nothing where lines do not move.
CLEAR_LINE=
[ ! -t 3 ] || CLEAR_LINE=$'\r\e[K'

# stage TITLE COMMAND...: runs the command, which stays in this shell, with its output in the log. When
# it fails, the end of the output is shown.
stage() {
    local title start=$SECONDS status=0 reporter
    STAGE=$((STAGE + 1))
    title="$STAGE of $STAGES: $1"
    shift
    [ -n "$CLEAR_LINE" ] || tell "$title"
    echo "== $title" >>"$LOG"
    report_progress "$title" &
    reporter=$!
    # shellcheck disable=SC2064 # the process of now
    trap "kill $reporter 2>/dev/null" EXIT
    "$@" >>"$LOG" 2>&1 || status=$?
    kill "$reporter" 2>/dev/null || true
    wait "$reporter" 2>/dev/null || true
    trap - EXIT
    if [ "$status" -ne 0 ]; then
        show_failed_stage "$title"
        die "$title failed after $((SECONDS - start)) s; all of it is in ${LOG#"$DEV_ROOT/"}"
    fi
    tell "$title: $((SECONDS - start)) s"
}

report_progress() {
    local title=$1 start=$SECONDS every=$HEARTBEAT idle line
    exec {idle}<> <(:) # never has a line: waiting for one starts no program that could outlive this
    [ -z "$CLEAR_LINE" ] || every=1
    while ! read -rt "$every" -u "$idle"; do
        line=$(tail -n 1 "$LOG" | tr -d '\r')
        if [ -n "$CLEAR_LINE" ]; then
            printf '%s%.*s' "$CLEAR_LINE" "$(($(tput cols 2>/dev/null || echo 80) - 1))" \
                "$title, $((SECONDS - start)) s  $line" >&3
        else
            printf '  %s s  %.100s\n' "$((SECONDS - start))" "$line" >&3
        fi
    done
}

# The compiler's or the package manager's last words: what follows the first failed step, if a step is named.
show_failed_stage() {
    tell "$1 failed:"
    awk -v title="== $1" '
        $0 == title {text = ""; found = 0}
        /^FAILED: |^CMake Error|^E: / && !found {found = 1; text = ""}
        {text = text $0 "\n"}
        END {printf "%s", text}' "$LOG" | grep -v '^/usr/bin/.* -c ' | tail -n 40 >&3
}
