#!/usr/bin/env bash
# Sets up, builds, and opens the window on FILE.c3d, or on the bundled sample walk. Without a display
# it prints the measures instead and saves a picture of the window.
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
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$programs/vantrel" "$file"
fi

echo "There is no display to open the window on. The measures of $file:"
echo
"$programs/vantrel-report" measures -- "$file"
"$programs/vantrel-picture" "$file" "$programs/window.png"
echo "A picture of the window: $programs/window.png"
