#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what is missing, builds everything and runs all tests; with "asan" or "tsan" under those sanitizers.
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
cmake --preset "$preset" -DORDELIN_WERROR="${ORDELIN_WERROR:-OFF}" >/dev/null
cmake --build --preset "$preset"
ctest --preset "$preset" --parallel "$(nproc)"
