#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# fuzz.sh SECONDS: builds the fuzz targets and runs each for that long, from the seed files and what earlier runs found.
set -euo pipefail
seconds=${1:?"usage: fuzz.sh SECONDS"}
cd "$(dirname "$0")/.."

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz >/dev/null
for source in fuzz/*_fuzzer.cpp; do
    target=$(basename "$source" .cpp)
    mkdir -p "build/fuzz/found/$target"
    (
        cd build/fuzz
        ./fuzz/"$target" -max_total_time="$seconds" -max_len=4096 -verbosity=0 -print_final_stats=1 \
            "found/$target" ../../fuzz/corpus 2>"$target.log" || { cat "$target.log" >&2; exit 1; }
        grep -E 'number_of_executed_units|new_units_added' "$target.log"
    )
done
