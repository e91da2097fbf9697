#!/usr/bin/env bash
# Runs a fuzz target on its corpus and then on new inputs for some seconds. What it finds stands in build/fuzz-findings.
#   tools/fuzz.sh TARGET CORPUS SECONDS
set -euo pipefail
target=$1 corpus=$2 seconds=$3
findings=$(cd "$(dirname "$0")/.." && pwd)/build/fuzz-findings
new=$(mktemp -d)
trap 'rm -rf "$new"' EXIT
mkdir -p "$findings"
"$target" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=2048 -max_len=40000 -print_final_stats=1 -verbosity=0 \
    -artifact_prefix="$findings/$(basename "$target")-" "$new" "$corpus"
