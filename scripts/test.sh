#!/bin/sh
# Installs what is missing, builds Tarnquill with its tests and runs every test:
# unit and golden tests, the sanitizer build, the fuzz targets (30 s each),
# the end-to-end tests in a real browser and the GUI tests under Xvfb.
# Exits non-zero when any test fails.
set -eu
cd "$(dirname "$0")/.."
scripts/install-deps.sh --test
JOBS="$(nproc)"

echo "== build and unit tests"
TQ_BUILD_DIR=build scripts/build.sh -DBUILD_TESTING=ON -DTQ_WERROR=ON -DTQ_BENCH=ON
if command -v xvfb-run >/dev/null; then
    xvfb-run -a -s "-screen 0 1920x1080x24" ctest --test-dir build --output-on-failure -j "$JOBS"
else
    ctest --test-dir build --output-on-failure -j "$JOBS"
fi

echo "== benchmarks (a short run each; figures in the README)"
for b in build/bin/*_bench; do
    if [ -x "$b" ]; then
        "$b" --benchmark_min_time=0.05 2>&1 | grep -E "^BM_" | head -20
    fi
done

echo "== sanitizer build (ASan + UBSan) of the core and its tests"
TQ_BUILD_DIR=build-asan scripts/build.sh -DBUILD_TESTING=ON -DTQ_BUILD_GUI=OFF -DTQ_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --test-dir build-asan --output-on-failure -j "$JOBS" -L unit

if [ -d tests/fuzz ] && ls tests/fuzz/*_fuzz.cpp >/dev/null 2>&1; then
    echo "== fuzz targets, 30 s each"
    TQ_BUILD_DIR=build-fuzz CXX=clang++ scripts/build.sh -DBUILD_TESTING=ON -DTQ_BUILD_GUI=OFF -DTQ_FUZZ=ON \
        -DCMAKE_CXX_COMPILER=clang++
    for f in tests/fuzz/*_fuzz.cpp; do
        name="$(basename "$f" .cpp)"
        corpus="tests/fuzz/corpus/${name%_fuzz}"
        work="$(mktemp -d)"
        [ -d "$corpus" ] && cp -r "$corpus"/. "$work"/
        echo "-- $name"
        "build-fuzz/bin/$name" -max_total_time=30 -rss_limit_mb=4096 -print_final_stats=1 "$work" 2>&1 | tail -4
        rm -rf "$work"
    done
fi

if [ -x tests/e2e/run.sh ]; then
    echo "== end-to-end tests (php -S on 127.0.0.1, headless chromium)"
    tests/e2e/run.sh build
fi
if [ -x tests/publish/run.sh ]; then
    echo "== publishing to sshd, an FTP server with TLS and php -S on 127.0.0.1"
    tests/publish/run.sh build
fi
echo "== all tests passed"
