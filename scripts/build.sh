#!/bin/sh
# Configures and builds Tarnquill into build/ (or $TQ_BUILD_DIR).
# Extra arguments go to cmake's configure step.
set -eu
cd "$(dirname "$0")/.."
BUILD_DIR="${TQ_BUILD_DIR:-build}"
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "$@" >/dev/null
cmake --build "$BUILD_DIR"
