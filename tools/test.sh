#!/bin/bash
# Runs the unit tests and the script tests of a built preset: tools/test.sh PRESET JOBS
# Shows what fails; the last line is the sum over both.
set -uo pipefail
cd "$(dirname "$0")/.."
preset=${1:?usage: tools/test.sh PRESET JOBS}
jobs=${2:-2}
build=build/$preset

if [ "$preset" = sanitize ]; then
  export ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1:strict_string_checks=1:check_initialization_order=1
  export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
fi

unit_log=$build/unit-tests.log
ctest --test-dir "$build" -j "$jobs" --output-on-failure --timeout 300 >"$unit_log" 2>&1
unit_status=$?
# The closing line is "97% tests passed, 3 tests failed out of 120".
read -r unit_failed unit_all < <(sed -n 's/^.*tests passed, \([0-9]*\) tests failed out of \([0-9]*\)$/\1 \2/p' "$unit_log" | tail -1)
if [ -z "${unit_all:-}" ]; then
  cat "$unit_log"
  echo "error: the unit tests did not run" >&2
  exit 1
fi
if [ $unit_status -ne 0 ]; then
  grep -vE '^ *Start +[0-9]+:|^ *[0-9]+/[0-9]+ Test .* Passed ' "$unit_log"
fi
echo "Unit tests: $((unit_all - unit_failed)) of $unit_all passed"

script_log=$build/script-tests.log
"$build/bin/tidemark" test tests/scripts examples --strict --time-limit 600 --jobs "$jobs" 2>&1 | tee "$script_log" |
  sed -u -E 's/^([0-9]+ passed, [0-9]+ failed)$/Script tests: \1/'
script_status=${PIPESTATUS[0]}
read -r script_passed script_failed < <(sed -n 's/^\([0-9]*\) passed, \([0-9]*\) failed$/\1 \2/p' "$script_log" | tail -1)
if [ -z "${script_passed:-}" ]; then
  echo "error: the script tests did not run to their end (exit code $script_status)" >&2
  exit 1
fi

echo "$((unit_all - unit_failed + script_passed)) passed, $((unit_failed + script_failed)) failed"
[ $unit_status -eq 0 ] && [ "$script_status" -eq 0 ]
