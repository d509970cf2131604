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
# take_page PAGE: with all that it leads to.
take_page() {
  local link
  [ ! -e "$folder/docs/$1" ] || return 0
  cp "$source/docs/$1" "$folder/docs"
  [[ $1 = *.md ]] || return 0
  while IFS= read -r link; do take_page "$link"; done < <(
    grep -oE '\]\([^):#]+[)#]' "$source/docs/$1" | sed 's/^](//; s/.$//' | sort -u)
}
take_page manual.md

{
  cat "$source/LICENSE"
  echo
  cat /usr/share/common-licenses/GPL-3
} >"$folder/LICENSE.txt"

# Of all that is part of the programs.
cp "$toolkit"/licences/* "$folder/licences"
packages=(fonts-dejavu-core libcli11-dev libfmt-dev mingw-w64-common rapidjson-dev
  gcc-mingw-w64-x86-64-posix-runtime)
for package in "${packages[@]}"; do
  cp -L "/usr/share/doc/$package/copyright" "$folder/licences/$package"
done
# The full texts that these speak of.
grep -rhoE '/usr/share/common-licenses/[A-Za-z0-9]+(-[0-9.]*[0-9])?' "$folder/licences" | sort -u |
  while IFS= read -r text; do
    cp -L "$text" "$folder/licences"
  done
for text in "$folder"/licences/*; do mv "$text" "$text.txt"; done
"$source/packaging/windows/list_sources.sh" "${packages[@]}" >"$folder/licences/SOURCES.txt"
cp "$source"/cmake/mingw/toolkit/*.patch "$folder/licences"

# Every file alike, whatever the rights here.
find "$folder" -type d -exec chmod 755 {} +
find "$folder" -type f -exec chmod 644 {} +
