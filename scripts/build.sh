#!/bin/sh
# Configures and builds Tarnquill into build/ (or $TQ_BUILD_DIR).
# Extra arguments go to cmake's configure step.
set -eu
cd "$(dirname "$0")/.."
BUILD_DIR="${TQ_BUILD_DIR:-build}"
# ccache, when there, makes rebuilds of a second build folder cheap
LAUNCHER=""
command -v ccache >/dev/null 2>&1 && LAUNCHER="-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo $LAUNCHER "$@" >/dev/null
cmake --build "$BUILD_DIR"
