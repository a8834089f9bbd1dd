#!/bin/bash
# Lets each entry of the catalogue do nothing, one by one, and runs the script tests that name it: an entry whose tests all
# pass is a survivor, which nothing tests. tools/mutate.sh PRESET JOBS [ENTRY...]; without entries all are tried.
# A condition is tried with both answers. Exit code 1 if there are survivors that tools/mutate-allowed.txt doesn't name.
set -uo pipefail
cd "$(dirname "$0")/.."

# One mutant: prints its name if it survives. Called by the loop below.
if [ "${1:-}" = --one ]; then
  program=$2 mutant=$3
  name=${mutant%%=*}
  # The entry's own tests come first: most mutants don't outlive them.
  mapfile -t files < <(grep -rlw --include='*.script' -e "$name" tests/scripts examples | xargs -r grep -l '@expect' |
    awk -v own="/$name/" '{ print (index($0, own) ? 0 : 1) " " $0 }' | sort | cut -d' ' -f2-)
  chunk=1 next=0
  while [ "$next" -lt "${#files[@]}" ]; do
    "$program" test --jobs 1 --time-limit 60 --blank "$mutant" "${files[@]:$next:$chunk}" >/dev/null 2>&1
    case $? in
    0) ;;
    1) exit 0 ;;
    *) echo "error: $mutant could not be tried" && exit 0 ;;
    esac
    next=$((next + chunk)) chunk=$((chunk * 3))
  done
  echo "$mutant (${#files[@]} tests)"
  exit 0
fi

preset=${1:?usage: tools/mutate.sh PRESET JOBS [ENTRY...]}
jobs=${2:-2}
shift 2
program=build/$preset/bin/tidemark
start=$SECONDS
mapfile -t mutants < <("$program" catalogue --format json | awk -F'"' '
  /^    "kind":/ { kind = $4 }
  /^    "name":/ { print (kind == "condition") ? $4 "\n" $4 "=true" : $4 }')
if [ $# -gt 0 ]; then
  wanted=" $* "
  mapfile -t mutants < <(for mutant in "${mutants[@]}"; do [[ $wanted == *" ${mutant%%=*} "* ]] && echo "$mutant"; done)
fi
if [ "${#mutants[@]}" -eq 0 ]; then
  echo "error: there is nothing to try" >&2
  exit 1
fi

survivors=$(printf '%s\0' "${mutants[@]}" | xargs -0 -P "$jobs" -n 1 "$0" --one "$program" | sort)
unexpected=$(awk 'NR == FNR { sub(/#.*/, ""); if ($1 != "") allowed[$1] = 1; next } NF && !($1 in allowed)' \
  tools/mutate-allowed.txt <(echo "$survivors"))
[ -z "$survivors" ] || sed 's/^/survives: /' <<<"$survivors"
count=$(sed '/^$/d' <<<"$unexpected" | wc -l)
echo "${#mutants[@]} mutants in $((SECONDS - start)) s, $count survive that should not"
[ "$count" -eq 0 ]
