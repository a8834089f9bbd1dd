#!/bin/bash
# Fuzzes the script parser: tools/fuzz.sh PRESET SECONDS JOBS. Our own scripts are the seeds; what it learns stays in the
# build folder. Children are replaced when they grow, since records of scripts live as long as their process.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build/${1:?usage: tools/fuzz.sh PRESET SECONDS JOBS}
seconds=${2:-60}
jobs=${3:-2}
mkdir -p "$build/corpus" "$build/crashes"
export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
"$build/bin/fuzz_parser" "$build/corpus" tests/scripts examples -fork="$jobs" -max_total_time="$seconds" -max_len=4096 \
  -rss_limit_mb=2048 -dict=fuzz/script.dict -artifact_prefix="$build/crashes/" 2>&1 |
  grep --line-buffered -vE '^ *NEW_FUNC'
