#!/bin/bash
# Configures a preset, the first time and when the presets have changed, and builds it: tools/build.sh PRESET [TARGET...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=${1:?usage: tools/build.sh PRESET [TARGET...]}
shift
if [ ! -f "build/$preset/build.ninja" ] || [ CMakePresets.json -nt "build/$preset/CMakeCache.txt" ]; then
  cmake --preset "$preset"
fi
cmake --build "build/$preset" ${1:+--target "$@"}
