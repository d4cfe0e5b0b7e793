#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# try_in_bare_root.sh PACKAGE: installs the package in a root folder with nothing but a bare Debian in it, starts the
# program there and saves a picture of its window in build/bare-root.png. Takes root; whether it may mount or not.
set -euo pipefail
cd "$(dirname "$0")/.."
package=$(realpath "${1:?"usage: try_in_bare_root.sh PACKAGE"}")

if [ "$(id -u)" -ne 0 ]; then
    echo "The package was not tried in a bare root: that takes root."
    exit
fi

work=$(mktemp -d)
# One file system only: what could be mounted below it is not ours.
trap 'rm -rf --one-file-system "$work"' EXIT
root=$work/root
chmod 755 "$work"

# The release of this system, from where it has its own packages.
# shellcheck source=/dev/null
suite=$(. /etc/os-release && echo "$VERSION_CODENAME")
sources=()
for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list /etc/apt/sources.list.d/*.sources; do
    if [ -s "$file" ]; then
        sources+=("$file")
    fi
done
skip=()
if ! unshare --mount true 2>/dev/null; then
    skip=(--skip=check/canmount --skip=chroot/mount)
fi
mmdebstrap --quiet --mode=root --variant=apt "${skip[@]}" --aptopt='Acquire::Languages "none"' \
    --aptopt='APT::Install-Recommends "false"' \
    --customize-hook="copy-in '$package' /tmp" \
    --customize-hook="chroot \"\$1\" apt-get install -y -qq /tmp/$(basename "$package") >/dev/null" \
    "$suite" "$root" "${sources[@]}" || {
    echo "No bare root with the package in it could be made." >&2
    exit 1
}

version=$(dpkg-deb --field "$package" Version)
said=$(env -i PATH="$PATH" LC_ALL=C.UTF-8 chroot "$root" ordelin --version)
[ "$said" = "Ordelin $version" ] || {
    echo "The program in the bare root says that it is $said." >&2
    exit 1
}
mkdir -p "$root/root/.config/Ornbury Workshops"
printf '[misc]\nautoOpen=1\n' >"$root/root/.config/Ornbury Workshops/Ordelin.ini" # The first start is over.
scripts/picture.sh build/bare-root.png env -u XDG_CONFIG_HOME -u XDG_STATE_HOME HOME=/root LC_ALL=C.UTF-8 \
    chroot "$root" ordelin -- /usr/share/ordelin/samples/vardagsord.gls
echo "The package works in a bare root."
