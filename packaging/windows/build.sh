#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Vantrel for Windows and makes of it, in build/packages/, an installer and a zip:
#   packaging/windows/build.sh            vantrel-VERSION-setup.exe and vantrel-VERSION-windows.zip
#   packaging/windows/build.sh --pack     the same of what build/windows-window/ holds, built before
# From the same sources both are the same byte for byte.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$here/../.."
build=$PWD/build/windows-window
packages=$PWD/build/packages

version=$(sed -n 's/^project(Vantrel VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
# The day of the version; a clock does not count.
day=$(sed -n "s/^## $version — \([0-9-]*\)$/\1/p" CHANGELOG.md)
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(date -u -d "${day:?CHANGELOG.md has no day for $version}" +%s)} LC_ALL=C.UTF-8 TZ=UTC

if [ "${1:-}" != --pack ]; then
  ./setup.sh --windows-window
  cmake --preset windows-window
  cmake --build --preset windows-window --target vantrel vantrel-curves vantrel-report sample-walk
fi

files=$packages/vantrel-$version
toolkit=${VANTREL_WINDOWS_TOOLKIT:-$(cmake/mingw/toolkit/build.sh --where)}
"$here/collect.sh" "$build" "$toolkit" "$files"
"$here/list_files.sh" "$files" >"$packages/files.nsh"
# Beside the text of the last page stands the icon.
rsvg-convert --width 128 --height 128 --background-color white packaging/desktop/vantrel.svg |
  pngtopnm | pnmpad -white -left 18 -right 18 -top 40 -bottom 146 |
  ppmtobmp -quiet -windows -bpp 24 >"$packages/side.bmp"
kilobytes=$(find "$files" -type f -printf '%s\n' | awk '{ sum += $1 } END { print int(sum / 1024) }')

makensis -V2 -INPUTCHARSET UTF8 -DVERSION="$version" -DFILES="$files" \
  -DLIST="$packages/files.nsh" -DICON="$build/icon/vantrel.ico" -DPICTURE="$packages/side.bmp" \
  -DKILOBYTES="$kilobytes" \
  -DOUTPUT="$packages/vantrel-$version-setup.exe" "$here/vantrel.nsi"
"$here/make_zip.py" "$files" "$packages/vantrel-$version-windows.zip"
rm -r "$files" "$packages/files.nsh" "$packages/side.bmp"
ls -l "$packages/vantrel-$version-setup.exe" "$packages/vantrel-$version-windows.zip"
