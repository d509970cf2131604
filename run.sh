#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up, builds, and opens the window on FILE.c3d, or on the bundled sample walk. Without a display
# it prints the measures instead and saves a picture of the window and a page of curves.
#   ./run.sh [FILE.c3d]
set -euo pipefail
file=${1:+$(realpath -- "$1")}
cd "$(dirname "$0")"

{
  ./setup.sh
  cmake --preset release
  cmake --build --preset release
} >&2

programs=$PWD/build/release
file=${file:-$programs/sample-walk.c3d}
# A display may be named and not be there.
has_display() {
  [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || return 1
  (ulimit -c 0; timeout 10 "$programs/vantrel-picture" --check-display) >/dev/null 2>&1
}

if has_display 2>/dev/null; then
  exec "$programs/vantrel" "$file"
fi

echo "There is no display to open the window on. The measures of $file:"
echo
"$programs/vantrel-report" measures -- "$file"
QT_QPA_PLATFORM=offscreen "$programs/vantrel-picture" "$file" "$programs/window.png"
echo "A picture of the window: $programs/window.png"
"$programs/vantrel-curves" --overwrite --output "$programs/curves.pdf" -- "$file"
echo "Its pages of curves: $programs/curves.pdf"
