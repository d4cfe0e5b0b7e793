#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# fuzz.sh SECONDS: builds the fuzz targets and runs each for that long, from the seed files and what earlier runs found;
# as many at a time as there are processors.
set -euo pipefail
seconds=${1:?"usage: fuzz.sh SECONDS"}
cd "$(dirname "$0")/.."

cmake --preset fuzz >/dev/null
cmake --build --preset fuzz >/dev/null

run() { # TARGET SECONDS
    mkdir -p "found/$1"
    ./fuzz/"$1" -max_total_time="$2" -max_len=4096 -verbosity=0 -print_final_stats=1 -artifact_prefix="$1-" \
        "found/$1" ../../fuzz/corpus 2>"$1.log" || { cat "$1.log" >&2; exit 1; }
    echo "$1: $(grep -oE '(number_of_executed_units|new_units_added): .*' "$1.log" | tr -s '\n ' ' ')"
}
export -f run
targets=(fuzz/*_fuzzer.cpp)
targets=("${targets[@]##*/}")
cd build/fuzz
printf '%s\0' "${targets[@]%.cpp}" | xargs -0 -P "$(nproc)" -I {} bash -c 'run "$@"' run {} "$seconds"
