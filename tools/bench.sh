#!/usr/bin/env bash
# Measures the release programs; without a display under a virtual one.  tools/bench.sh PROGRAMS FILE
set -euo pipefail
if [ -z "${DISPLAY:-}" ]; then
    number=90
    while [ -e "/tmp/.X11-unix/X$number" ]; do number=$((number + 1)); done
    export DISPLAY=:$number
    Xvfb "$DISPLAY" -screen 0 1440x900x24 >/dev/null 2>&1 &
    processes=($!)
    trap 'kill "${processes[@]}" 2>/dev/null || true' EXIT
    for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X$number" ] && break; sleep 0.1; done
    openbox >/dev/null 2>&1 &
    processes+=($!)
    sleep 1
fi
"$1/zandolin_bench" "$2"
