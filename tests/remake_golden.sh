#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the golden texts of the sample walk anew with the tool of a build:
#   tests/remake_golden.sh [BUILD_FOLDER]      (build/release unless named)
# Each line of golden/cases.txt is a file and the arguments that print it; the GCD files are
# those of the strides that are kept. Read what has changed (git diff tests/golden) before you keep it.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath -- "${1:-build/release}")
golden=$PWD/tests/golden

work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
cp -- "$build/sample-walk.c3d" "$work"
cd "$work"
while read -r -a words; do
  [ ${#words[@]} -gt 0 ] || continue
  "$build/vantrel-report" "${words[@]:1}" sample-walk.c3d > "$golden/${words[0]}"
done < "$golden/cases.txt"
for file in "$golden"/*.gcd; do
  cp -- "${file##*/}" "$golden"
done
