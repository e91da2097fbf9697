#!/usr/bin/env bash
# Runs a script of Python in a session of its own: display, window manager, bus and the bus of screen readers.
#   tests/outside/bus.sh SCRIPT WORD...     DISPLAY_SIZE is that of the screen
set -euo pipefail
here=$(dirname "$0")
if [ "${1:-}" != --inside ]; then
    XDG_RUNTIME_DIR=$(mktemp -d)
    export XDG_RUNTIME_DIR QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb
    trap 'rm -rf "$XDG_RUNTIME_DIR"' EXIT
    "$here/../../tools/display.sh" dbus-run-session -- "$0" --inside "$@"
    exit
fi
/usr/libexec/at-spi-bus-launcher --launch-immediately &
launcher=$!
trap 'kill $launcher 2>/dev/null || true' EXIT
PYTHONPATH=$here /usr/bin/python3 -B "${@:2}"
