#!/bin/sh
# End-to-end tests: generated scripts served by PHP's built-in server on
# 127.0.0.1 (mails caught through sendmail_path), driven by Debian's chromium
# through playwright-core. Usage: tests/e2e/run.sh BUILD_DIR
# Exits non-zero when anything fails or a tool is missing.
set -eu
here="$(cd "$(dirname "$0")" && pwd)"
build="$(cd "${1:-build}" && pwd)"
for tool in php node /usr/bin/chromium; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "e2e: $tool is missing (scripts/install-deps.sh --test installs it)" >&2
        exit 1
    fi
done
if [ ! -d "$here/node_modules/playwright-core" ]; then
    (cd "$here" && PLAYWRIGHT_SKIP_BROWSER_DOWNLOAD=1 npm ci --no-audit --no-fund --silent)
fi
"$here/show/run.sh" "$build"
cd "$here"
exec node e2e.mjs "$build"
