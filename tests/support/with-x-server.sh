#!/usr/bin/env bash
# Runs a command on an X server of its own (Xvfb) with a window manager (openbox), and stops both after.
# XSERVER_SCREEN sets the screen, 1280x800x24 by default; with XSERVER_OTHER_SCREEN there is a second.
set -u

[ $# -gt 0 ] || { echo "usage: $0 COMMAND [ARGUMENT...]" >&2; exit 2; }
for tool in Xvfb openbox; do
    command -v "$tool" >/dev/null || { echo "$0: $tool is not installed" >&2; exit 1; }
done

scratch=$(mktemp -d)
Xvfb -displayfd 3 -screen 0 "${XSERVER_SCREEN:-1280x800x24}" \
    ${XSERVER_OTHER_SCREEN:+-screen 1 "$XSERVER_OTHER_SCREEN"} -nolisten tcp -noreset \
    3>"$scratch/display" >"$scratch/xvfb.log" 2>&1 &
server=$!
manager=
finish() {
    [ -z "$manager" ] || kill "$manager" 2>/dev/null
    kill "$server" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$scratch"
}
trap finish EXIT

for _ in $(seq 100); do
    [ -s "$scratch/display" ] && break
    kill -0 "$server" 2>/dev/null || break
    sleep 0.1
done
[ -s "$scratch/display" ] || { echo "$0: Xvfb did not start" >&2; cat "$scratch/xvfb.log" >&2; exit 1; }
DISPLAY=":$(cat "$scratch/display")"
export DISPLAY

openbox --sm-disable >"$scratch/openbox.log" 2>&1 &
manager=$!
# The window manager is up once it has set its name on the root window.
for _ in $(seq 100); do
    xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break
    sleep 0.1
done

"$@"
