#!/usr/bin/env bash
# Installs what is missing, builds, and runs every test: the whole suite under a virtual X server
# with software OpenGL, the non-GUI tests again under AddressSanitizer and UBSan, and each fuzz
# target for a short run. Exits non-zero on any failure.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

jobs=$(nproc)
fuzz_seconds=${SKYLATHE_FUZZ_SECONDS:-30}

echo "== sanitizers: build"
scripts/build.sh build/asan -DCMAKE_BUILD_TYPE=Debug -DSKYLATHE_GUI=OFF -DSKYLATHE_SANITIZE=ON \
    -DSKYLATHE_BENCHMARKS=OFF
echo "== sanitizers: test"
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
    ctest --test-dir build/asan --output-on-failure -j "$jobs"

echo "== fuzz: build"
scripts/build.sh build/fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
    -DSKYLATHE_GUI=OFF -DSKYLATHE_FUZZ=ON -DSKYLATHE_BENCHMARKS=OFF -DSKYLATHE_TESTS=ON
echo "== fuzz: run ${fuzz_seconds}s each"
scripts/fuzz.sh build/fuzz "$fuzz_seconds"

echo "== full suite: build"
scripts/build.sh build/test -DCMAKE_BUILD_TYPE=RelWithDebInfo
echo "== full suite: test under Xvfb"
export LIBGL_ALWAYS_SOFTWARE=1 QT_QPA_PLATFORM=xcb
xvfb-run -a -s "-screen 0 1280x1024x24" ctest --test-dir build/test --output-on-failure -j 1
