#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Collects in FOLDER, which is made anew, what Vantrel is on Windows: the programs of a build, the
# sample walk, the manual and the licences.
#   collect.sh BUILD TOOLKIT FOLDER
# TOOLKIT is the folder of the toolkit in the programs, whose licences go with them.
set -euo pipefail
source=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
build=$1 toolkit=$2 folder=$3
rm -rf "$folder"
mkdir -p "$folder/docs" "$folder/licences"

cp "$build/vantrel.exe" "$build/vantrel-curves.exe" "$build/vantrel-report.exe" \
  "$build/sample-walk.c3d" "$folder"
# With this file beside it the program puts no others there.
echo "This file keeps vantrel.exe from putting others beside itself." >"$folder/vantrel.exe.manifest1"

cp "$source/CHANGELOG.md" "$folder"
cp "$source/docs/manual.md" "$source/docs/archive.md" "$folder/docs"
# The pictures that they show.
grep -ho '](\([^)#:]*\.png\))' "$folder"/docs/*.md | tr -d ']()' | sort -u |
  while IFS= read -r picture; do cp "$source/docs/$picture" "$folder/docs"; done

{
  cat "$source/LICENSE"
  echo
  cat /usr/share/common-licenses/GPL-3
} >"$folder/LICENSE.txt"

# Of all that is part of the programs.
cp "$toolkit"/licences/* "$folder/licences"
for package in fonts-dejavu-core libcli11-dev libfmt-dev mingw-w64-common rapidjson-dev \
  gcc-mingw-w64-x86-64-posix-runtime; do
  cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package"
done
# The full texts that these speak of.
grep -rhoE '/usr/share/common-licenses/[A-Za-z0-9]+(-[0-9.]*[0-9])?' "$folder/licences" | sort -u |
  while IFS= read -r text; do
    cp -L "$text" "$folder/licences"
  done
for text in "$folder"/licences/*; do mv "$text" "$text.txt"; done

# Every file alike, whatever the rights here.
find "$folder" -type d -exec chmod 755 {} +
find "$folder" -type f -exec chmod 644 {} +
