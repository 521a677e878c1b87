#!/bin/sh
# The photo show in a real browser: a show built by tarnquill-cli, served by
# php -S on 127.0.0.1, driven by Debian's chromium through playwright-core.
# Usage: tests/e2e/show/run.sh BUILD_DIR. Exits non-zero when anything fails.
set -eu
here="$(cd "$(dirname "$0")" && pwd)"
build="$(cd "${1:-build}" && pwd)"
for tool in php node python3 /usr/bin/chromium "$build/bin/tarnquill-cli"; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "show e2e: $tool is missing (scripts/install-deps.sh --test installs the tools)" >&2
        exit 1
    fi
done
if [ ! -d "$here/../node_modules/playwright-core" ]; then
    (cd "$here/.." && PLAYWRIGHT_SKIP_BROWSER_DOWNLOAD=1 npm ci --no-audit --no-fund --silent)
fi
exec node "$here/show.mjs" "$build"
