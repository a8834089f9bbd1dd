#!/bin/bash
# The project explains itself in its own words: a reader has nothing else at hand, so no text may lean on an outside
# document by number or by name. Lists offenders and fails if there are any.
set -uo pipefail
cd "$(dirname "$0")/.."
# This file has to hold the words it looks for.
if found=$(git grep -nIwiE 'spec|specs|specification|specifications|as specified|Part [0-9]+(\.[0-9]+)?|issue #?[0-9]+' -- . ':!tools/check-words.sh'); then
  echo "Words that point outside the project:" >&2
  echo "$found" >&2
  exit 1
fi
