#!/bin/sh
# Installs what is missing, builds Tarnquill and starts it. Without a display
# it says so and builds the bundled sample project with the command-line tool.
set -eu
cd "$(dirname "$0")/.."
scripts/install-deps.sh
# the program alone: tests are built by scripts/test.sh
scripts/build.sh -DBUILD_TESTING=OFF
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/bin/tarnquill
fi
echo "No display found: building the sample form with tarnquill-cli instead."
OUT="$(mktemp -d)"
mkdir -p "$OUT/web"
cp data/samples/sample_form.fms "$OUT/"
build/bin/tarnquill-cli build "$OUT/sample_form.fms" --whole-page --data-folder "$OUT" --replace --web-folder "$OUT/web"
echo "The page and its script are in $OUT/web"
