#!/usr/bin/env bash
# Runs a command under a virtual display of its own, once a window manager is ready there: a window that asks to be
# shown while the manager starts would stay unseen.  tools/display.sh COMMAND [ARGUMENT...]
# DISPLAY_SIZE is the size of the screen, 1440x900 without it. Ends with the status of the command.
set -euo pipefail
readonly LIMIT=60  # seconds that a part may take to start on a busy machine

work=$(mktemp -d)
processes=()
clean_up() {
    [ ${#processes[@]} -eq 0 ] || kill "${processes[@]}" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap clean_up EXIT
give_up() {
    echo "$1 did not start within $LIMIT seconds:" >&2
    cat "$2" >&2
    exit 1
}

# A pipe that is open at both ends: reading from it waits for a word, however long its writer takes to open it.
mkfifo "$work/told"
exec 3<>"$work/told"

Xvfb -displayfd 3 -screen 0 "${DISPLAY_SIZE:-1440x900}x24" -nolisten tcp 2>"$work/xvfb.log" &
processes+=($!)
read -r -t $LIMIT number <&3 || give_up Xvfb "$work/xvfb.log"
export DISPLAY=:$number
unset WAYLAND_DISPLAY

openbox --startup "sh -c 'echo ready >$work/told'" 3>&- >"$work/openbox.log" 2>&1 &
processes+=($!)
read -r -t $LIMIT _ <&3 || give_up openbox "$work/openbox.log"

status=0
"$@" 3>&- || status=$?
exit $status
