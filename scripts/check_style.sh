#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Formatting of every source file, and static analysis of the program's own ones; fails on the first kind of fault.
set -euo pipefail
cd "$(dirname "$0")/.."

git ls-files -z --cached --others --exclude-standard -- '*.h' '*.cpp' | xargs -0 clang-format --dry-run --Werror

cmake --preset tidy >/dev/null
# The sources that the build makes.
cmake --build build/tidy --target ordelin_core_autogen ordelin_ui_autogen ordelin_autogen >/dev/null
scripts/static_analysis.py build/tidy
echo "Formatting and static analysis found nothing."
