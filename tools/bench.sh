#!/bin/bash
# Runs every benchmark program of a built preset: tools/bench.sh PRESET [ARGUMENT...], --markdown for tables to paste.
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:?usage: tools/bench.sh PRESET [ARGUMENT...]}
shift
echo "Machine: $(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -1), $(nproc) cores, $(c++ --version | head -1)"
for program in "build/$preset"/bin/bench_*; do
  echo
  echo "== $(basename "$program")"
  "$program" "$@"
done
