#!/usr/bin/env bash
# Sets up, builds, and prints the header report of FILE.c3d, or of the bundled sample walk.
#   ./run.sh [FILE.c3d]
set -euo pipefail
file=${1:+$(realpath -- "$1")}
cd "$(dirname "$0")"

{
  ./setup.sh
  cmake --preset release
  cmake --build --preset release
} >&2
build/release/vantrel-report header -- "${file:-build/release/sample-walk.c3d}"
