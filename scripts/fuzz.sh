#!/usr/bin/env bash
# Runs every fuzz target of a fuzz build for SECONDS each: scripts/fuzz.sh BUILD_DIR SECONDS
# Each starts from the seeds the seed maker writes; findings land in BUILD_DIR/fuzz-findings.
set -euo pipefail
build=$1
seconds=$2
corpus="$build/fuzz-corpus"
findings="$build/fuzz-findings"
mkdir -p "$corpus" "$findings"
# A model's round trip makes and frees thousands of small lists per input. With the sanitizer's
# default quarantine of 256 MB every one of them lands in fresh memory, which costs more than the
# round trip itself; 4 MB still holds some twenty inputs' worth of freed memory, so a use after
# free within one input is still caught. The sanitizer also skips noting the calls that made and
# freed each list, about a tenth of the run: a finding's report still shows the faulty access,
# and running the target on the saved input (BUILD_DIR/tests/fuzz/TARGET FINDING) repeats it
# with those calls.
export ASAN_OPTIONS="${ASAN_OPTIONS:-quarantine_size_mb=4:malloc_context_size=0}"
"$build/tests/fuzz/make_fuzz_seeds" "$corpus"

status=0
for target in "$build"/tests/fuzz/fuzz_*; do
    [[ -x "$target" ]] || continue
    name=$(basename "$target")
    mkdir -p "$corpus/$name"
    echo "fuzz: $name for ${seconds}s"
    if ! "$target" -max_total_time="$seconds" -print_final_stats=1 -artifact_prefix="$findings/$name-" \
        "$corpus/$name" 2>"$build/$name.log"; then
        echo "fuzz: $name found a failure, see $build/$name.log and $findings" >&2
        tail -40 "$build/$name.log" >&2
        status=1
    fi
    grep -E 'stat::number_of_executed_units' "$build/$name.log" || true
done
exit $status
