#!/usr/bin/env bash
# Measures the release programs; without a display under a virtual one.  tools/bench.sh PROGRAMS FILE
set -euo pipefail
[ -n "${DISPLAY:-}" ] || exec "$(dirname "$0")/display.sh" "$0" "$@"
"$1/zandolin_bench" "$2"
