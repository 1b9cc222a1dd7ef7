#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 The VELM4030 developers
# SPDX-License-Identifier: MIT
#
# fuzz/run.sh SECONDS: runs every fuzz target for so long on its corpus, all side by side. Build the preset "fuzz"
# before. What a target finds stays in build/fuzz/findings.
set -euo pipefail
CDPATH="" cd -- "$(dirname -- "$0")/.."

new=$(mktemp -d)
trap 'rm -rf "$new"' EXIT
mkdir -p build/fuzz/findings
targets=()
for source in fuzz/*_fuzz.cpp; do
    target=$(basename "$source" _fuzz.cpp)
    echo "fuzz_$target, $1 seconds"
    mkdir "$new/$target"
    "build/fuzz/fuzz_$target" -max_total_time="$1" -artifact_prefix=build/fuzz/findings/ -verbosity=0 \
        -print_final_stats=0 "$new/$target" "fuzz/corpus/$target" &
    targets+=($!)
done
for target in "${targets[@]}"; do
    wait "$target"
done
