#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds the benchmarks, runs them one after the other and prints their ratios and how cost grows, as
# the two tables of docs/speed.md; with --page it puts them there instead. Takes about five minutes
# and 4 GB of room for temporary files, on a machine that does nothing else. What each program
# printed is left in build/release/bench/. Ends with 1 where a bound is missed.
#   bench/run.sh [--page] [NAME...]   open check label listing spline gcd batch archive python pages window curves growth, or all
set -euo pipefail
cd "$(dirname "$0")/.."

page=
if [ "${1:-}" = --page ]; then
  page=docs/speed.md
  shift
fi
names=("$@")
[ ${#names[@]} -gt 0 ] || names=(open check label listing spline gcd batch archive python pages window curves growth)

build=build/release
{
  cmake --preset release -DVANTREL_BENCH=ON
  cmake --build --preset release --parallel 2 --target "${names[@]/%/_bench}"
} >&2

details=$build/bench
status=0

# Runs one program and keeps all that it prints.
run() {
  echo "running $1_bench" >&2
  "$build/$1_bench" >"$details/$1.txt" 2>&1 || status=1
}

# The rows of the tables that the programs printed.
rows() {
  for name in "$@"; do grep '^|' "$details/$name.txt" || true; done
}

tables() {
  local ratios=() name
  for name in "${names[@]}"; do [ "$name" = growth ] || ratios+=("$name"); done
  echo "$(lscpu | sed -n 's/^Model name: *//p'), $(nproc) processors, $(c++ --version | head -n 1)."
  if [ ${#ratios[@]} -gt 0 ]; then
    printf '\n| measured | against | figure | at most | |\n|---|---|---|---|---|\n'
    rows "${ratios[@]}"
  fi
  if [[ " ${names[*]} " == *" growth "* ]]; then
    printf '\n| operation | 1 x | 10 x | 100 x | exponent to 10 x | to 100 x | at most | |\n'
    printf '|---|---|---|---|---|---|---|---|\n'
    rows growth
  fi
}

for name in "${names[@]}"; do run "$name"; done
if [ -n "$page" ]; then
  tables >"$details/tables.md"
  sed -i -e '/^<!-- tables -->$/r '"$details/tables.md" \
    -e '/^<!-- tables -->$/,/^<!-- end of tables -->$/{/^<!-- /!d}' "$page"
else
  tables
fi
[ $status -eq 0 ] || echo "A bound is missed or a program failed: see $details/*.txt" >&2
exit $status
