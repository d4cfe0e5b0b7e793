#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what building and running need: "program" for build and tests, "display" for pictures of windows,
# "package" for the Debian package, "clang" for the other compiler with its sanitizers, "checks" for formatting, static
# analysis and what is installed. Does nothing when all of it is there.
set -euo pipefail

program=(g++ cmake ninja-build ccache mold python3 pkg-config qt6-base-dev libqt6svg6 qt6-wayland libicu-dev zlib1g-dev
    libgl-dev libx11-dev libxtst-dev libcanberra-dev fonts-dejavu-core)
display=(xvfb openbox imagemagick xdotool)
package=(debhelper dpkg-dev)
clang=(clang libclang-rt-dev)
checks=(clang-format clang-tidy git
    desktop-file-utils appstream shared-mime-info libglib2.0-bin groff-base lintian mmdebstrap)

declare -n packages=${1:?"usage: setup.sh program|display|package|clang|checks"}

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    cat >&2 <<EOF
This system has no Debian packages, so nothing was installed. Needed are: a C++20 compiler, CMake 3.25, Ninja,
Python 3, Qt 6.4 (base and SVG), ICU, zlib and libcanberra, with their development files; for pictures of windows without a
display Xvfb, openbox, xdotool and ImageMagick; for the checks clang, clang-format and clang-tidy.
EOF
    # What is needed may have come another way; a package takes Debian.
    [ "$1" != package ] && command -v cmake >/dev/null && command -v ninja >/dev/null
    exit
fi

missing=()
for package in "${packages[@]}"; do
    dpkg-query --show --showformat='${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed \
        || missing+=("$package")
done
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "Missing: ${missing[*]}. Install them as root, or install sudo." >&2
        exit 1
    fi
    as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
