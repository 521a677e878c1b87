#!/bin/sh
# Installs what Tarnquill needs to build, run and test, when it is missing.
# Quiet when everything is there. Usage: scripts/install-deps.sh [--test]
set -eu
PKGS="cmake ninja-build g++ ccache qt6-base-dev qt6-webengine-dev qt6-tools-dev qt6-charts-dev libgl-dev libcurl4-openssl-dev qtkeychain-qt6-dev libgmime-3.0-dev nlohmann-json3-dev libssl-dev pkg-config"
if [ "${1:-}" = "--test" ]; then
    PKGS="$PKGS dpkg-dev libgtest-dev libgmock-dev libbenchmark-dev php-cli php-zip xvfb xauth chromium clang libclang-rt-14-dev python3-pyftpdlib python3-openssl python3-xlib vsftpd openssh-server openssh-client dovecot-imapd curl openssl sudo"
fi
missing=""
for p in $PKGS; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $p"
    fi
done
# Node.js may come from another source than Debian; only ask for Debian's
# packages when the commands are missing.
if [ "${1:-}" = "--test" ]; then
    command -v node >/dev/null 2>&1 || missing="$missing nodejs"
    command -v npm >/dev/null 2>&1 || missing="$missing npm"
fi
if [ -n "$missing" ]; then
    SUDO=""
    [ "$(id -u)" -ne 0 ] && SUDO="sudo"
    echo "Installing:$missing"
    $SUDO apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq $missing >/dev/null
fi
# The end-to-end tests drive Debian's chromium through playwright-core.
if [ "${1:-}" = "--test" ] && [ -f "$(dirname "$0")/../tests/e2e/package.json" ]; then
    cd "$(dirname "$0")/../tests/e2e"
    if [ ! -d node_modules/playwright-core ]; then
        PLAYWRIGHT_SKIP_BROWSER_DOWNLOAD=1 npm install --no-audit --no-fund --silent >/dev/null
    fi
fi
