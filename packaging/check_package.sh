#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the Debian packages of a build and fails where a system would not take them: lintian, the
# validators of the desktop entry and of the metadata, the file type of a trial, and an import by the
# system's own Python.
#   check_package.sh BUILD_FOLDER
set -euo pipefail
build=$(realpath -- "$1")
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

(cd "$folder" && cpack --config "$build/CPackConfig.cmake" -B "$folder" >"$folder/cpack.log" 2>&1) ||
  { cat "$folder/cpack.log"; exit 1; }
package=$(echo "$folder"/vantrel_*.deb)
python_package=$(echo "$folder"/python3-vantrel_*.deb)
lintian --fail-on error,warning --allow-root --no-user-dirs "$package" "$python_package"

dpkg-deb --extract "$package" "$folder/root"
share=$folder/root/usr/share
for program in vantrel vantrel-curves vantrel-report; do
  test -x "$folder/root/usr/bin/$program"
  test -s "$share/man/man1/$program.1.gz"
done
test ! -e "$folder/root/usr/bin/vantrel-picture"
for part in fonts-dejavu-core libcli11-dev rapidjson-dev; do
  grep -qi copyright "$share/doc/vantrel/licences/$part"
done
for page in "$share"/man/man1/*.gz; do
  complaints=$(man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
  [ -z "$complaints" ] || { echo "$page: $complaints"; exit 1; }
done
desktop-file-validate "$share/applications/vantrel.desktop"
appstreamcli validate --no-net --explain "$share/metainfo/org.vantrel.vantrel.metainfo.xml"

# A trial has the type that the desktop entry opens, whatever the case of its extension.
export XDG_DATA_HOME=$folder/home XDG_DATA_DIRS=$share
update-mime-database "$share/mime"
update-desktop-database "$share/applications"
grep -qx 'application/x-c3d=vantrel.desktop;' "$share/applications/mimeinfo.cache"
grep -qx '50:application/x-c3d:\*.c3d' "$share/mime/globs2"

# The package of Python stands by itself, and the other one holds nothing of it.
test ! -e "$folder/root/usr/lib/python3"
dpkg-deb --extract "$python_package" "$folder/python"
test ! -e "$folder/python/usr/bin"
grep -qi copyright "$folder/python/usr/share/doc/python3-vantrel/licences/pybind11-dev"
modules=$folder/python/usr/lib/python3/dist-packages
test -s "$modules/vantrel/_core.pyi" && test -e "$modules/vantrel/py.typed"
dpkg-deb --field "$python_package" Depends | grep -q 'python3 (>= 3\.[0-9]*~), python3 (<< 3\.[0-9]*)'
(cd / && PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=$modules /usr/bin/python3 -c '
import sys, vantrel
trial = vantrel.open(sys.argv[1])
assert trial.points["LTOE"].shape == (trial.frames, 3)
assert vantrel.__file__.startswith(sys.argv[2])' "$build/sample-walk.c3d" "$modules")
echo "The packages are well: $(basename "$package"), $(basename "$python_package")"
