#!/usr/bin/env bash
# Measures two builds in turn, and tells for each figure how they compare.
#   tools/compare_bench.sh PROGRAMS OTHER_PROGRAMS FILE     FILE gets a line a figure: name, ratio, and what it means
set -euo pipefail
readonly ROUNDS=3
programs=$1 others=$2 file=$3
work=$(mktemp -d "$(dirname "$file")/compare-XXXXXX")
trap 'rm -rf "$work"' EXIT
for round in $(seq $ROUNDS); do
    "$(dirname "$0")/bench.sh" "$programs" "$work/new.$round"
    "$(dirname "$0")/bench.sh" "$others" "$work/old.$round"
done
# The middle one of the rounds' ratios; within a tenth they are the same.
awk -F '\t' -v rounds=$ROUNDS '
    { side = FILENAME ~ /\/new\./ ? "new" : "old"; round = FILENAME; sub(/.*\./, "", round)
      value[side, $1, round] = $2; if (side == "new" && round == 1) name[++names] = $1 }
    END {
        for (n = 1; n <= names; ++n) {
            count = 0
            for (r = 1; r <= rounds; ++r)
                if (value["old", name[n], r] > 0) ratio[++count] = value["new", name[n], r] / value["old", name[n], r]
            if (count == 0) { printf "%s\t-\tnew\n", name[n]; continue }
            for (i = 1; i <= count; ++i)
                for (j = i + 1; j <= count; ++j)
                    if (ratio[j] < ratio[i]) { swap = ratio[i]; ratio[i] = ratio[j]; ratio[j] = swap }
            middle = ratio[int((count + 1) / 2)]
            printf "%s\t%.2f\t%s\n", name[n], middle, middle > 1.1 ? "slower" : middle < 0.9 ? "faster" : "same"
        }
    }' "$work"/new.? "$work"/old.? | tee "$file"
