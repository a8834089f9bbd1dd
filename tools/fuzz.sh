#!/bin/bash
# Fuzzes what reads texts of strangers: tools/fuzz.sh PRESET SECONDS JOBS. All targets run side by side, on as many
# processes as JOBS allows and one each at least. Our own scripts and documents are the seeds; what is learned stays in the
# build folder.
set -uo pipefail
cd "$(dirname "$0")/.."
build=build/${1:?usage: tools/fuzz.sh PRESET SECONDS JOBS}
seconds=${2:-60}
jobs=${3:-2}
export ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
mkdir -p "$build/crashes"
trap 'kill $(jobs -p) 2>/dev/null' EXIT

# start TARGET LONGEST-INPUT DICTIONARY SEEDS...
start() {
  local target=$1 longest=$2 dictionary=$3
  shift 3
  mkdir -p "$build/corpus/$target"
  "$build/bin/$target" "$build/corpus/$target" "$@" -max_total_time="$seconds" -max_len="$longest" -rss_limit_mb=2048 \
    -entropic=0 -dict="fuzz/$dictionary" -artifact_prefix="$build/crashes/" -print_final_stats=1 2>&1 |
    grep --line-buffered -vE 'NEW_FUNC|NEW  |REDUCE|RELOAD|###|DE: ' | sed -u "s/^/$target: /" &
}

processes=$(((jobs + 1) / 2))
for ((i = 0; i < processes; ++i)); do
  start fuzz_parser 1024 script.dict tests/scripts examples
  start fuzz_tokenizer 256 script.dict tests/scripts
  start fuzz_rml 1024 rml.dict data/em5/gui
  start fuzz_network 512 network.dict
done
failed=0
for job in $(jobs -p); do
  wait "$job" || failed=1
done
exit $failed
