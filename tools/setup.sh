#!/bin/bash
# Installs the packages of a list that are missing. Quick and silent when nothing is; asks for no rights then.
set -euo pipefail
list=${1:?usage: tools/setup.sh PACKAGE_LIST}

installed=$(dpkg-query -W -f='${binary:Package} ${db:Status-Status}\n' | sed -n 's/^\([^ :]*\)\(:[a-z0-9]*\)\? installed$/\1/p')
missing=()
while read -r package; do
  grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' -e '/^$/d' "$list")
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing ${#missing[@]} packages: ${missing[*]}"
as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "error: packages are missing and there is no sudo; as root, run: apt-get install ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"
