#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything and runs all tests; with "asan" under that sanitizer, with "tsan" those
# that start threads.
set -euo pipefail
cd "$(dirname "$0")"

preset=${1:-dev}
case $preset in
dev | asan | tsan) ;;
*)
    echo "usage: ./test.sh [asan | tsan]" >&2
    exit 2
    ;;
esac

scripts/setup.sh program
if [ "$preset" = asan ]; then
    scripts/setup.sh clang
fi
cmake --preset "$preset" -DORDELIN_WERROR="${ORDELIN_WERROR:-OFF}" >/dev/null
built=()
run=()
if [ "$preset" = tsan ]; then
    built=(--target threaded_tests)
    run=(--label-regex '^threads$')
fi
cmake --build --preset "$preset" "${built[@]}"
ctest --preset "$preset" --parallel "$(nproc)" "${run[@]}"
