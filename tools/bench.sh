#!/usr/bin/env bash
# Measures the release programs; without a display under a virtual one.  tools/bench.sh PROGRAMS FILE [SUBJECT...]
# The folders that it works on lie beside FILE, on a disk as a user's do.
set -euo pipefail
[ -n "${DISPLAY:-}" ] || exec "$(dirname "$0")/display.sh" "$0" "$@"
TMPDIR=$(mktemp -d "$(dirname "$2")/bench-XXXXXX")
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT
"$1/zandolin_bench" "${@:2}"
