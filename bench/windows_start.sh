#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Holds the start of the window on Windows, under Wine, against its start here, on one display: from
# the start of the program with a trial to its first paint. Builds what it needs, prints a row like
# those of docs/speed.md, and fails where the bound is missed.
set -euo pipefail
cd "$(dirname "$0")/.."
most=3
runs=15

if [ -z "${VANTREL_WINE_DISPLAY:-}" ]; then
  ./setup.sh --windows-window >&2
  for preset in release windows-window; do
    cmake --preset $preset -DVANTREL_BENCH=ON
    cmake --build --preset $preset --target first_paint
  done >&2
  cmake --build --preset release --target sample-walk >&2
  exec tests/wine_display.sh "$0"
fi

trial=$PWD/build/release/sample-walk.c3d
program=build/windows-window/bench/first_paint/first_paint.exe
milliseconds() {
  local start end
  start=$(date +%s%N)
  "$@" >/dev/null 2>&1
  end=$(date +%s%N)
  echo $(((end - start) / 1000000))
}
median() { sort -n | sed -n "$((runs / 2 + 1))p"; }

# The desktop of Windows is there before anybody starts a program.
"$WINE" "$program" "Z:$trial" 2>/dev/null
build/release/first_paint "$trial" 2>/dev/null
for ((i = 0; i < runs; i++)); do
  milliseconds "$WINE" "$program" "Z:$trial" >&3
  milliseconds build/release/first_paint "$trial"
done 3>build/windows-window/starts.txt >build/release/starts.txt
windows=$(median <build/windows-window/starts.txt)
linux=$(median <build/release/starts.txt)
awk -v windows="$windows" -v linux="$linux" -v most="$most" 'BEGIN {
  ratio = windows / linux
  printf "| Start to first paint on Windows, %d ms | here, %d ms | %.2f | %.2f | %s |\n",
    windows, linux, ratio, most, ratio <= most ? "kept" : "MISSED"
  exit ratio > most
}'
