#!/bin/bash
# Installs a build into a temporary folder, moves it away and runs it there: moved_installation.sh SOURCE_FOLDER BUILD_FOLDER
# While it runs, empty file systems hide the source tree and the build folder. Where that takes rights that we don't have, the run goes
# without; that the program uses its own files only is shown in any case, by taking them away one after the other.
set -euo pipefail
source=$1
build=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
unset TIDEMARK_DATA LD_LIBRARY_PATH

fail() {
  echo "FAILED: $1"
  [ ! -s "$work/output" ] || cat "$work/output"
  exit 1
}

DESTDIR=$work/stage cmake --install "$build" --prefix /usr --strip >/dev/null
mv "$work/stage/usr" "$work/moved"
rmdir "$work/stage"
cp "$source/tests/scripts/tick/SingleTriggerFiresOnce.script" "$work/once.script"
tidemark=$work/moved/bin/tidemark
share=$work/moved/share/tidemark
for thing in data/em5/project.json examples/harbour/project.json docs/language.md README.md; do
  [ -f "$share/$thing" ] || fail "$thing is not installed"
done

hidden() { "$@"; }
hide='mount -t tmpfs none "$0" && { [ ! -d "$1" ] || mount -t tmpfs none "$1"; } && shift && exec "$@"'
for unshare in "unshare --mount" "unshare --mount --map-root-user"; do
  if $unshare bash -c "$hide" "$source" "$build" test ! -e "$source/CMakeLists.txt" 2>/dev/null; then
    hidden() { $unshare bash -c "$hide" "$source" "$build" "$@"; }
    break
  fi
done
hidden test ! -e "$source/CMakeLists.txt" || echo "The source tree could not be hidden."

cd /
hidden "$tidemark" run "$share/examples/harbour" --seconds 26 >"$work/output" 2>&1 || fail "the harbour does not run"
grep -qF "Good night: the harbour closes." "$work/output" || fail "the harbour does not come to its end"
hidden "$tidemark" test "$work/once.script" >"$work/output" 2>&1 || fail "the script test fails"
grep -qxF "1 passed, 0 failed" "$work/output" || fail "the script test did not run"

hidden "$tidemark" docs "$work/reference" >"$work/output" 2>&1 || fail "the reference is not written"
grep -qF '<article id="Timer"' "$work/reference/reference.html" || fail "the reference has no Timer"

# Each of these has one place only.
for part in share/tidemark/data/em5 lib/tidemark/libtidemark.so lib/tidemark/libqsf_host.so; do
  mv "$work/moved/$part" "$work/taken"
  ! "$tidemark" run "$share/examples/harbour" --seconds 1 >"$work/output" 2>&1 || fail "it runs without its $part"
  mv "$work/taken" "$work/moved/$part"
done
"$tidemark" run "$share/examples/harbour" --seconds 1 >"$work/output" 2>&1 || fail "it does not run with all parts back in place"
