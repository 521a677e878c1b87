#!/bin/sh
# Builds the Debian package, unpacks it into a scratch root and runs the
# command-line tool from there.
set -eu
BUILD_DIR="$1"
root="$(mktemp -d)"
trap 'rm -rf "$root"' EXIT
(cd "$BUILD_DIR" && cpack -G DEB -B "$root/pkg" >/dev/null)
deb="$(ls "$root"/pkg/*.deb | head -1)"
dpkg-deb -x "$deb" "$root/inst"
test -x "$root/inst/usr/bin/tarnquill-cli"
test -f "$root/inst/usr/share/applications/tarnquill.desktop"
test -f "$root/inst/usr/share/icons/hicolor/scalable/apps/tarnquill.svg"
"$root/inst/usr/bin/tarnquill-cli" --help | grep -q "tarnquill-cli new"
echo "package $(basename "$deb") installs and runs"
