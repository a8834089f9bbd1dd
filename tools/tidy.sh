#!/bin/bash
# clang-tidy over the sources that changed since the last commit and in it; LINT_ALL=1 takes all. tools/tidy.sh JOBS
set -uo pipefail
cd "$(dirname "$0")/.."
jobs=${1:-2}
# Its own configuration, without precompiled headers: those of g++ can't be read by clang.
cmake --preset lint >build-lint.log 2>&1 || { cat build-lint.log; rm -f build-lint.log; exit 1; }
rm -f build-lint.log

if [ -n "${LINT_ALL:-}" ]; then
  files=$(git ls-files 'host/*.cpp' 'game_plugin/*.cpp' 'apps/*.cpp' 'tests/*.cpp' 'bench/*.cpp')
else
  files=$({ git diff --name-only --diff-filter=d HEAD; git show --name-only --diff-filter=d --format= HEAD; } |
    sort -u | grep -E '^(host|game_plugin|apps|tests|bench)/.*\.cpp$')
fi
[ -z "$files" ] && exit 0
# -n 1: the compiler front end dominates, and single files keep both cores busy to the end.
xargs -r -P "$jobs" -n 1 clang-tidy -p build/lint --quiet <<<"$files" 2> >(grep -vE '^[0-9]+ warnings? (generated|treated)|^Suppressed|^Use -header-filter' >&2)
