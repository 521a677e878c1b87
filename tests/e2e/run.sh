#!/bin/sh
# End-to-end tests: generated scripts served by PHP's built-in server on
# 127.0.0.1 (mails caught through sendmail_path), driven by Debian's chromium
# through playwright-core: the golden pages, a golden script behind a
# hand-made form, and real projects built by tarnquill-cli (one of them
# served by `tarnquill-cli serve`). Screenshots of the sample pages land in
# BUILD_DIR/artifacts. Usage: tests/e2e/run.sh BUILD_DIR
# Exits non-zero when anything fails or a tool is missing.
set -eu
here="$(cd "$(dirname "$0")" && pwd)"
build="$(cd "${1:-build}" && pwd)"
missing=""
for tool in php node npm /usr/bin/chromium "$build/bin/tarnquill-cli"; do
    command -v "$tool" >/dev/null 2>&1 || missing="$missing $tool"
done
if [ -n "$missing" ]; then
    echo "e2e: installing what is missing:$missing"
    "$here/../../scripts/install-deps.sh" --test
fi
for tool in php node /usr/bin/chromium "$build/bin/tarnquill-cli"; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "e2e: $tool is missing (scripts/install-deps.sh --test installs it; build the CLI first)" >&2
        exit 1
    fi
done
if [ ! -d "$here/node_modules/playwright-core" ]; then
    (cd "$here" && PLAYWRIGHT_SKIP_BROWSER_DOWNLOAD=1 npm ci --no-audit --no-fund --silent)
fi
"$here/show/run.sh" "$build"
cd "$here"
exec node e2e.mjs "$build"
