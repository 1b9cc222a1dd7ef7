#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# bench/compare.sh BUILD_A BUILD_B [FILTER [ROUNDS]]: the benchmarks that both build folders have and whose
# PROGRAM:NAME matches FILTER (a regular expression; all of them unless it is given), in turn, A B A B. A line for
# each: the least B took over the least A took, the median of the rounds' own ratios, and the two least times.
# Less than 1 is faster. A machine that is busy with something else shows in ratios that differ.
#
#     bench/compare.sh /tmp/before/build/release build/release 'pictures:blur/'
set -euo pipefail
if [ $# -lt 2 ]; then
    sed -n '5,10s/^# \{0,1\}//p' "$0"
    exit 2
fi
before=$1 after=$2 filter=${3:-.} rounds=${4:-7}
results=$(mktemp)
trap 'rm -f "$results"' EXIT

# Lines "PROGRAM:NAME": what both builds have and the filter wants.
wanted() {
    local build program
    for build in "$before" "$after"; do
        for program in "$build"/bench_*; do
            "$program" --benchmark_list_tests | sed "s/^/${program##*/bench_}:/"
        done
    done | sort | uniq -d | grep -E -- "$filter"
}

# Appends lines "ROUND BUILD PROGRAM:NAME NANOSECONDS" of processor time.
measure() { # ROUND BUILD LETTER PROGRAM NAMES
    "$2/bench_$4" "--benchmark_filter=^($5)\$" --benchmark_min_time=0.05 --benchmark_format=csv 2>/dev/null |
        awk -F, -v round="$1" -v build="$3" -v program="$4" '
            BEGIN { unit["ns"] = 1; unit["us"] = 1e3; unit["ms"] = 1e6; unit["s"] = 1e9 }
            $5 in unit { gsub(/"/, "", $1); print round, build, program ":" $1, $4 * unit[$5] }' >>"$results"
}

list=$(wanted) || { echo "no benchmark that both have matches $filter" >&2; exit 1; }
programs=$(cut -d: -f1 <<<"$list" | uniq)
for ((round = 1; round <= rounds; ++round)); do
    for program in $programs; do
        names=$(sed -n "s/^$program://p" <<<"$list" | paste -sd '|')
        measure "$round" "$before" A "$program" "$names"
        measure "$round" "$after" B "$program" "$names"
    done
done

awk '
    function median(values, count,    i, j, kept) {
        for (i = 2; i <= count; ++i)
            for (j = i; j > 1 && values[j - 1] > values[j]; --j) {
                kept = values[j]; values[j] = values[j - 1]; values[j - 1] = kept
            }
        return count % 2 ? values[(count + 1) / 2] : (values[count / 2] + values[count / 2 + 1]) / 2
    }
    !($3 in seen) { seen[$3] = 1; names[++known] = $3 }
    { time[$1, $2, $3] = $4; if (!(($2, $3) in least) || $4 < least[$2, $3]) least[$2, $3] = $4 }
    $1 > rounds { rounds = $1 }
    END {
        printf "%7s %7s %12s %12s  (B/A of the least, median of B/A, least us of A and B, %d rounds)\n",
            "ratio", "median", "A", "B", rounds
        for (n = 1; n <= known; ++n) {
            name = names[n]
            for (i = 1; i <= rounds; ++i) ratios[i] = time[i, "B", name] / time[i, "A", name]
            printf "%7.3f %7.3f %12.2f %12.2f  %s\n", least["B", name] / least["A", name], median(ratios, rounds),
                least["A", name] / 1e3, least["B", name] / 1e3, name
        }
    }' "$results"
