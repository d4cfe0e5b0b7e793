#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Checks the files in packaging/, installs the release build into a folder and removes it again, makes the Debian
# package and looks into it. As root it is also tried in a bare root folder.
set -euo pipefail
cd "$(dirname "$0")/.."

work=$(mktemp -d)
kept=build/release/installed_files.txt # What the user installed from this build is not ours to forget.
cleanup() {
    rm -f "$kept"
    if [ -f "$work/installed_files.txt" ]; then
        cp "$work/installed_files.txt" "$kept"
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
    local icons=share/icons/hicolor id=workshops.ornbury.ordelin
    {
        cat <<END
bin/ordelin
lib/ordelin/ordelin_window.so
share/applications/$id.desktop
share/bash-completion/completions/ordelin
share/doc/ordelin/copyright
share/fish/vendor_completions.d/ordelin.fish
$icons/16x16/apps/$id.svg
$icons/scalable/apps/$id.svg
$icons/scalable/mimetypes/application-x-ordelin.svg
share/man/man1/ordelin.1
share/man/sv/man1/ordelin.1
share/metainfo/$id.metainfo.xml
share/mime/packages/ordelin.xml
share/zsh/site-functions/_ordelin
END
        find help samples sounds -type f -printf 'share/ordelin/%p\n'
        find modules -type f -printf 'share/ordelin/ordmod/%P\n'
    } | sort >"$work/expected"
    # The databases that the desktop makes of them, and what Debian adds to every package.
    (cd "$1" && find . -not -type d -printf '%P\n') \
        | grep -Ev '^share/(applications/mimeinfo.cache|mime/[^p]|doc/ordelin/changelog.gz)' \
        | sed 's/\.1\.gz$/.1/; s,zsh/vendor-completions/,zsh/site-functions/,' | sort | diff "$work/expected" - || fail "$1 has other files"
}

version=$(sed -n 's/^project(ordelin VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
[ "$(dpkg-parsechangelog -S Version)" = "$version" ] || fail "The package's changelog is of another version"
for page in packaging/*.1; do
    warnings=$(groff -man -Kutf8 -Tutf8 -ww -z "$page" 2>&1)
    [ -z "$warnings" ] || fail "$page: $warnings"
done

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
cmake --build --preset release --target ordelin
if [ -f "$kept" ]; then
    cp "$kept" "$work"
fi
prefix=$work/prefix
cmake --install build/release --prefix "$prefix" >/dev/null
check_files "$prefix"
desktop-file-validate "$prefix"/share/applications/*.desktop
# The project has no domain, so the check of names, which is only information, has something to say.
description=$(echo "$prefix"/share/metainfo/*.xml)
appstreamcli validate --pedantic --no-net "$description"
grep -q "<release version=\"$version\"" "$description" || fail "The description doesn't know version $version"
cmake -S . -B build/release -D ORDELIN_WEB_PAGE=https://www.example.org/ordelin >/dev/null
appstreamcli validate --pedantic --no-net build/release/packaging/*.xml
cmake -S . -B build/release -U ORDELIN_WEB_PAGE >/dev/null
grep -qx application/x-ordelin "$prefix/share/mime/types" || fail "The type of file is not known after the installation"
grep -q '^application/x-ordelin=' "$prefix/share/applications/mimeinfo.cache" \
    || fail "The program is not known for its files after the installation"

scripts/make_package.sh "$work/package"
package=$(echo "$work"/package/*.deb)
dpkg --info "$package"
allow_root=()
if [ "$(id -u)" -eq 0 ]; then
    allow_root=(--allow-root)
fi
lintian "${allow_root[@]}" --fail-on error,warning "$package"
dpkg-deb --extract "$package" "$work/extracted"
check_files "$work/extracted/usr"

# The package was made after it.
cmake --build build/release --target uninstall >/dev/null
left=$(cd "$prefix" && find . -path ./share/mime -prune -o -not -type d -not -name mimeinfo.cache -print)
[ -z "$left" ] || fail "Left after uninstalling: $left"
if grep -qsx application/x-ordelin "$prefix/share/mime/types"; then
    fail "The type of file is still known after uninstalling"
fi

# has_hardening WHAT PATTERN READELF-OPTION: the program in the package and its module were built with it. All is read:
# who stops at the first hit breaks the pipe.
has_hardening() {
    for file in bin/ordelin lib/ordelin/ordelin_window.so; do
        readelf "$3" --wide "$work/extracted/usr/$file" | grep -E "$2" >/dev/null || fail "$file is built without $1"
    done
}
has_hardening "position-independent code" 'Type: +DYN' --file-header
has_hardening "stack protector" '__stack_chk_fail' --dyn-syms
has_hardening "read-only relocations" 'GNU_RELRO' --program-headers
has_hardening "binding at the start" 'FLAGS.*NOW' --dynamic

scripts/try_in_bare_root.sh "$package"
