#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# make_package.sh [FOLDER]: installs what is missing, builds the program and makes the Debian package in FOLDER, by
# default build/package.
set -euo pipefail
cd "$(dirname "$0")/.."
folder=$(realpath -m "${1:-build/package}")

scripts/setup.sh program
scripts/setup.sh package
dpkg-checkbuilddeps
rm -rf "$folder"
mkdir -p "$folder"
# Whatever the mode mask of whoever makes it, the package is for everyone.
umask 022
PACKAGE_FOLDER=$folder debian/rules clean binary >"$folder/log" 2>&1 || {
    tail -n 50 "$folder/log" >&2
    echo "make_package.sh: no package was made; the whole log is in $folder/log" >&2
    exit 1
}
debian/rules clean >>"$folder/log" 2>&1 # What it left in debian/; the build stays.
echo "The package is $(echo "$folder"/*.deb)"
