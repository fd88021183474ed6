#!/usr/bin/env bash
# Tests ./run: it installs no package for the tests, and gives a reason when the demo printer does not start.
# usage: tests/hosts/run_test.sh SOURCE_FOLDER
set -euo pipefail

source=$(realpath "${1:?usage: tests/hosts/run_test.sh SOURCE_FOLDER}")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export TMPDIR=$scratch/tmp
mkdir -p "$TMPDIR" "$scratch/stubs" "$scratch/copy/tools" "$scratch/copy/build/release/bin"

failures=0
# expect WHAT WANTED UNWANTED TEXT: expects the first pattern in the text, but not the second.
expect() {
  if grep -qE -- "$2" <<<"$4" && ! grep -qE -- "$3" <<<"$4"; then return; fi
  printf 'run_test: %s: not %s without %s:\n%s\n' "$@"
  failures=$((failures + 1))
}
# stub PATH LINE: creates a program of one line.
stub() {
  printf '#!/bin/sh\n%s\n' "$2" >"$1"
  chmod +x "$1"
}

# No package counts as installed, and installing does nothing.
stub "$scratch/stubs/dpkg-query" 'exit 1'
stub "$scratch/stubs/apt-get" 'exit 0'
stub "$scratch/stubs/sudo" 'exec "$@"'
expect "what ./run installs" 'qt6-base-dev .*cups-daemon' 'lintian|gtest|gtk|portal|xdotool|xvfb' \
  "$(PATH=$scratch/stubs:$PATH "$source/tools/install-dependencies" run)"
expect "what it builds with" 'Build files have been written' 'CMake Error' \
  "$(cd "$source" && cmake --preset release -B "$scratch/build" -DCMAKE_DISABLE_FIND_PACKAGE_GTest=ON 2>&1)"

cp "$source/run" "$scratch/copy"
stub "$scratch/copy/tools/install-dependencies" 'echo "installs $*"'
stub "$scratch/copy/tools/build-preset" 'exit 0'
stub "$scratch/copy/build/release/bin/kesto-demo-printer" 'echo "the port is taken" >&2; exit 1'
if output=$("$scratch/copy/run" 2>&1); then output+=" and ends well"; fi
expect "what it installs" '^installs run$' 'lintian' "$output"
expect "its end without a printer" 'the port is taken' 'No such process|ends well' "$output"
expect "what it leaves" '^$' '.' "$(ls -A "$TMPDIR")"
((failures == 0))
