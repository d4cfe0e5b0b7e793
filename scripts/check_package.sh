#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the files in packaging/, installs the release build into a folder, and makes the Debian package. As root the
# package is installed, tried and removed again; otherwise it is only looked into.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
chmod 755 "$work" # The package manager reads the package as a user of its own.
installed=
cleanup() {
    if [ -n "$installed" ]; then
        apt-get purge -y -qq ordelin >/dev/null || true
    fi
    rm -rf "$work"
}
trap cleanup EXIT

fail() {
    echo "$1" >&2
    exit 1
}

# check_type TYPE FILE CONTENT: the desktop takes a file of that name and content (with escapes) for that type.
check_type() {
    printf '%b' "$3" >"$work/$2"
    local type
    type=$(XDG_DATA_HOME=$work/data gio info -a standard::content-type "$work/$2" | sed -n 's/.*content-type: //p')
    [ "$type" = "$1" ] || fail "$2 is taken for $type instead of $1"
}

# check_files FOLDER: a folder holds just what is to be installed below a prefix.
check_files() {
    local documents=share/doc/ordelin icons=share/icons/hicolor/scalable
    {
        cat <<END
bin/ordelin
share/applications/ordelin.desktop
$documents/copyright
$icons/apps/ordelin.svg
$icons/mimetypes/application-x-ordelin.svg
share/man/man1/ordelin.1
share/metainfo/workshops.ornbury.ordelin.metainfo.xml
share/mime/packages/ordelin.xml
END
        find help sounds -type f -printf 'share/ordelin/%p\n'
        find modules -type f -printf 'share/ordelin/ordmod/%P\n'
        find samples -type f -printf "$documents/examples/%P\n"
    } | sort >"$work/expected"
    (cd "$1" && find . -not -type d -printf '%P\n') | sort | diff "$work/expected" - || fail "$1 has other files"
}

desktop-file-validate packaging/ordelin.desktop
appstreamcli validate --no-net packaging/*.metainfo.xml
warnings=$(groff -man -Tutf8 -ww -z packaging/ordelin.1 2>&1)
[ -z "$warnings" ] || fail "$warnings"

mkdir -p "$work/data/mime/packages"
cp packaging/ordelin-mime.xml "$work/data/mime/packages"
XDG_DATA_HOME=$work/data update-mime-database "$work/data/mime"
# Without an ending only what is in the file counts.
check_type application/x-ordelin ansi 'Ordelin 2.3-mini\r\n'
check_type application/x-ordelin utf8 '\xEF\xBB\xBFOrdelin 1\r\n'
check_type application/x-ordelin little-endian '\xFF\xFEO\x00r\x00d\x00e\x00l\x00i\x00n\x00 \x002\x00'
check_type application/x-ordelin big-endian '\xFE\xFF\x00O\x00r\x00d\x00e\x00l\x00i\x00n\x00 \x002'
check_type application/x-ordelin newer.gls 'Ordelin 3.0\r\n'
check_type text/x-latex-glossary latex.gls '\\glossarysection\n'

cmake --preset release >/dev/null
cmake --build --preset release
cmake --install build/release --prefix "$work/prefix" >/dev/null
check_files "$work/prefix"

cpack --config build/release/CPackConfig.cmake -B "$work/package" >"$work/cpack.log" || fail "$(cat "$work/cpack.log")"
package=$(echo "$work"/package/*.deb)
dpkg --info "$package"
dpkg-deb --field "$package" Depends | grep -q libqt6svg6 || fail "The package doesn't depend on the plug-in for pictures"
dpkg-deb --extract "$package" "$work/extracted"
check_files "$work/extracted/usr"

# has_hardening WHAT PATTERN READELF-OPTION: the program in the package was built with it.
has_hardening() {
    readelf "$3" --wide "$work/extracted/usr/bin/ordelin" | grep -Eq "$2" || fail "The program is built without $1"
}
has_hardening "position-independent code" 'Type: +DYN' --file-header
has_hardening "stack protector" '__stack_chk_fail' --dyn-syms
has_hardening "read-only relocations" 'GNU_RELRO' --program-headers
has_hardening "binding at the start" 'FLAGS.*NOW' --dynamic

if [ "$(id -u)" -ne 0 ] || dpkg-query --show ordelin >/dev/null 2>&1; then
    echo "The package was not tried: that takes root, on a system where it is not installed."
    exit
fi
installed=yes
DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "$package" >/dev/null
version=$(cd "$work" && env HOME="$work" QT_QPA_PLATFORM=offscreen /usr/bin/ordelin --version)
[[ $version == *"$(dpkg-deb --field "$package" Version)"* ]] || fail "The installed program says that it is $version"
grep -qx application/x-ordelin /usr/share/mime/types || fail "The installed type of file is not known"
apt-get purge -y -qq ordelin >/dev/null
installed=
[ ! -e /usr/bin/ordelin ] || fail "The program is still there"
echo "The package was installed and removed."
