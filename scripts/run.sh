#!/usr/bin/env bash
# Installs what is missing, builds the editor (Release) and starts it on the sample aircraft.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build/release -DCMAKE_BUILD_TYPE=Release -DSKYLATHE_TESTS=OFF -DSKYLATHE_BENCHMARKS=OFF

if [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" ]]; then
    echo "run: no display to show the editor on (DISPLAY is not set)" >&2
    exit 1
fi
sample="$PWD/build/release/sample/PDEMOF.MOX"
if [[ -f "$sample" ]]; then
    exec build/release/shell/skylathe "$sample"
fi
exec build/release/shell/skylathe
