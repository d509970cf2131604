#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs Vantrel in a fresh Wine folder from what build.sh made, works with it, removes it, and
# fails where anything is not as it should be or is left over:
#   packaging/windows/test.sh TOOL
# TOOL is vantrel-report of this system, which the installed one must agree with.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(cd "$here/../.." && pwd)
tool=$(realpath -- "$1")
version=$(sed -n 's/^project(Vantrel VERSION \([0-9.]*\).*/\1/p' "$root/CMakeLists.txt")
setup=$root/build/packages/vantrel-$version-setup.exe
zip=$root/build/packages/vantrel-$version-windows.zip
icon=$root/build/windows-window/icon/vantrel.ico

wine=/usr/lib/wine
work=$(mktemp -d)
export WINEPREFIX=$work/wine WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY
end_wine() {
  "$wine/wineserver64" --kill || true
  "$wine/wineserver64" --wait || true
}
trap 'end_wine; rm -rf "$work"' EXIT

# shellcheck source=packaging/windows/checks.sh
source "$here/checks.sh"

unpacked=$work/unpacked/vantrel-$version
mkdir "$work/unpacked"
python3 -m zipfile -e "$zip" "$work/unpacked"
check "one folder in the zip" test "$(ls "$work/unpacked")" = "vantrel-$version"
start_wine

# A Windows before its time.
wine winecfg -v win7
remember
check "refuses Windows 7" ends_with 2 "$setup" /S
check "touches nothing of Windows 7" as_remembered
wine winecfg -v win10

# Another program has the type.
for hive in HKCU HKLM; do
  wine reg add "$hive\\Software\\Classes\\.c3d" /ve /d Other.Trial /f >/dev/null
done
wine reg add 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Other' /f >/dev/null
remember
user=$(wine cmd /c 'echo %USERPROFILE%' | tr -d '\r')
programs='Microsoft\Windows\Start Menu\Programs'
alone="$user\\AppData\\Local\\Programs\\Vantrel"
user_menu="$user\\AppData\\Roaming\\$programs"

installs_and_leaves_nothing HKCU "$alone" "$user_menu"
installs_and_leaves_nothing HKLM 'C:\Program Files\Vantrel' "C:\\ProgramData\\$programs" /AllUsers
mkdir "$WINEPREFIX/drive_c/Grüße an Müller"
remember
# The folder is the rest of the command line, without quotation marks.
installs_and_leaves_nothing HKCU 'C:\Grüße an Müller\Vantrel 歩行' "$user_menu" \
  '/D=C:\Grüße' an 'Müller\Vantrel' 歩行

echo "Replacing an older version"
mkdir -p "$work/older/docs" "$work/older/gone"
cp "$unpacked/vantrel-report.exe" "$unpacked/vantrel.exe.manifest1" "$unpacked/LICENSE.txt" \
  "$work/older"
echo older | tee "$work/older/docs/manual.md" "$work/older/docs/older.md" \
  >"$work/older/gone/older.txt"
make_setup 0.0.1 "$work/older" "$work/older-setup.exe"
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
is_older=$(here_of "$alone")/gone/older.txt
check "has an older file" test -e "$is_older"
check "replaces the older version" ends_with 0 "$setup" /S
check "files of the newer version" holds_vantrel "$alone"
is_listed HKCU "$alone" "$version"
check "moves to another folder" ends_with 0 "$setup" /S '/D=C:\Grüße' an \
  'Müller\Vantrel'
check "files there" holds_vantrel 'C:\Grüße an Müller\Vantrel'
check "none in the old folder" test ! -e "$(here_of "$alone")"
wine 'C:\Grüße an Müller\Vantrel\uninstall.exe' /S
check "leaves nothing after that" eventually as_remembered

echo "Keeping files of the user"
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
echo mine >"$(here_of "$alone")/docs/mine.txt"
wine "$alone\\uninstall.exe" /S
left_alone() { diff <(cd "$(here_of "$alone")" && find . | sort) <(printf '%s\n' . ./docs ./docs/mine.txt); }
check "leaves a file of the user" eventually left_alone
check "installs beside it again" ends_with 0 "$work/older-setup.exe" /S
check "leaves it there" grep -qx mine "$(here_of "$alone")/docs/mine.txt"
wine "$alone\\uninstall.exe" /S
check "leaves it when removed again" eventually left_alone
rm -r "$(dirname "$(here_of "$alone")")"
check "leaves nothing else" eventually as_remembered
mkdir "$WINEPREFIX/drive_c/papers"
echo mine >"$WINEPREFIX/drive_c/papers/LICENSE.txt"
remember
check "refuses a folder with a file of its names" ends_with 2 "$setup" /S '/D=C:\papers'
check "touches nothing there" as_remembered

echo "Refusing a folder"
# refuses WHAT WORD...: an installer with these words ends with 2; that it changes nothing is seen at
# the end of all, since what one left the others do not take away.
refuses() {
  local what=$1
  shift
  check "refuses $what" ends_with 2 "$setup" /S "$@"
}
# As Windows hands words on, which wine quotes otherwise.
printf '%s\r\n' "\"$(wine winepath -w "$setup")\" /S /D=\"C:\\Quo ted\"" 'exit /b %errorlevel%' \
  >"$WINEPREFIX/drive_c/quoted.bat"
ln -s /proc "$WINEPREFIX/drive_c/locked"
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
remember
check "refuses a folder in quotation marks" ends_with 2 cmd /c 'C:\quoted.bat'
refuses "a word in quotation marks" '/D=C:\Quo ted'
refuses "slashes" /D=C:/Tools/Vantrel
refuses "one slash" '/D=C:\Tools/Vantrel'
refuses "no drive" '/D=Tools\Vantrel'
refuses "letters that no folder has" '/D=C:\Tools\Van*trel'
refuses "a percent sign" '/D=C:\100%Labor\Vantrel'
refuses "what stands for the trial" '/D=C:\Labor%1\Vantrel'
refuses "a small letter" '/d=C:\Tools\Vantrel'
refuses "a folder that cannot be made" '/D=Z:\proc\Tools\Vantrel'
refuses "a folder that cannot be written" '/D=C:\locked'
refuses "a folder below a file" '/D=C:\papers\LICENSE.txt\Vantrel'
check "changes nothing for any" as_remembered
mkdir "$WINEPREFIX/drive_c/other"
echo mine >"$WINEPREFIX/drive_c/other/docs"
remember
refuses "a folder with a file where one of its own comes" '/D=C:\other'
check "changes nothing for it" as_remembered
rm -r "$WINEPREFIX/drive_c/other" "$WINEPREFIX/drive_c/locked" "$WINEPREFIX/drive_c/quoted.bat"
wine "$alone\\uninstall.exe" /S
check "leaves nothing of the older version" eventually test ! -e "$(here_of "$alone")/uninstall.exe"
remember
check "installs into a folder by another name" ends_with 0 "$work/older-setup.exe" /S \
  '/D=C:\papers\..\Tools\.\Vantrel\'
check "lists it by its own" has "HKCU\\$listing" InstallLocation 'C:\Tools\Vantrel'
wine 'C:\Tools\Vantrel\uninstall.exe' /S
check "leaves nothing there" eventually as_remembered

echo "Waiting for an uninstaller"
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
check "is done at its end" ends_with 0 "$alone\\uninstall.exe" /S "_?=$alone"
check "leaves itself" test "$(ls "$(here_of "$alone")")" = uninstall.exe
rm -r "$(dirname "$(here_of "$alone")")"
check "leaves nothing else" as_remembered

echo "Leaving the folders that were there before"
mkdir "$WINEPREFIX/drive_c/theirs"
remember
for folder in theirs made\\by\\it theirs\\made; do
  check "installs the older version" ends_with 0 "$work/older-setup.exe" /S "/D=C:\\$folder"
  check "installs into the same" ends_with 0 "$work/older-setup.exe" /S
done
wine 'C:\theirs\made\uninstall.exe' /S
check "leaves theirs and nothing else" eventually as_remembered
rmdir "$WINEPREFIX/drive_c/theirs"

echo "Losing nothing where another program has a file open"
remember
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
cp -r "$(here_of "$alone")" "$work/before"
for file in vantrel.exe.manifest1 gone\\older.txt; do
  check "holds $file" holds "$alone\\$file"
  check "no upgrade while $file is held" ends_with 2 "$setup" /S
  check "no removing while $file is held" ends_with 2 "$alone\\uninstall.exe" /S "_?=$alone"
  check "loses nothing" diff -r "$work/before" "$(here_of "$alone")"
  check "is listed still" has "HKCU\\$listing" InstallLocation "$alone"
  lets_go
done
check "has the file types still" has 'HKCU\Software\Classes\Vantrel.Trial\shell\open\command' '' \
  "\"$alone\\vantrel.exe\" \"%1\""
rm -r "$work/before"
wine "$alone\\uninstall.exe" /S
check "leaves nothing" eventually as_remembered

echo "Removing while a file was opened after the question"
check "installs the older version" ends_with 0 "$work/older-setup.exe" /S
cp -r "$(here_of "$alone")" "$work/before"
check "asks" asks_first "$alone\\uninstall.exe" "_?=$alone"
check "holds a file" holds "$alone\\LICENSE.txt"
check "says that it is in use" gives_up
check "loses nothing" diff -r "$work/before" "$(here_of "$alone")"
check "lists it still" has "HKCU\\$listing" InstallLocation "$alone"
lets_go
rm -r "$work/before"
wine "$alone\\uninstall.exe" /S
check "leaves nothing" eventually as_remembered

echo "Leaving nothing half written"
make_setup 0.5.0 "$work/older" "$work/large-setup.exe" 4294967295
check "refuses a disk without room" ends_with 2 "$work/large-setup.exe" /S
# No file can be larger than this.
small_files() (
  trap '' XFSZ
  ulimit -f $(($(stat -c %s "$work/older/vantrel-report.exe") / 2048))
  "$@"
)
check "breaks off where a write fails" small_files ends_with 2 "$work/older-setup.exe" /S
mkdir "$WINEPREFIX/drive_c/half"
ln -s /proc "$WINEPREFIX/drive_c/half/docs"
check "breaks off where a file cannot be written" ends_with 2 "$work/older-setup.exe" /S '/D=C:\half'
check "takes back the files before it" test "$(ls "$WINEPREFIX/drive_c/half")" = docs
rm -r "$WINEPREFIX/drive_c/half"
check "leaves nothing of all three" as_remembered

everyone='C:\Program Files\Vantrel'
# knows_nothing HIVE: of Vantrel.
knows_nothing() {
  wine reg export "$1\\Software" "$work/exported.reg" /y >/dev/null 2>&1
  ! iconv -f UTF-16 -t UTF-8 "$work/exported.reg" | grep -i vantrel
}

echo "Removing what was moved"
for words in "/CurrentUser HKCU $alone" "/AllUsers HKLM $everyone"; do
  read -r word hive folder <<<"$words"
  remember
  check "installs the older version" ends_with 0 "$work/older-setup.exe" /S "$word"
  cp -r "$(here_of "$folder")" "$WINEPREFIX/drive_c/copied"
  wine 'C:\copied\uninstall.exe' /S
  check "removes a copy" eventually test ! -e "$WINEPREFIX/drive_c/copied"
  check "leaves what was copied" test -e "$(here_of "$folder")/gone/older.txt"
  check "lists it still" has "$hive\\$listing" InstallLocation "$folder"
  mv "$(here_of "$folder")" "$WINEPREFIX/drive_c/moved"
  wine 'C:\moved\uninstall.exe' /S
  check "leaves nothing of what was moved" eventually as_remembered
done

echo "Leaving the uninstaller of another program alone"
# It leaves a file where it ran.
make_program "$work/foreign.exe" 'FileOpen $0 "C:\ran" w' 'FileClose $0'
mkdir "$WINEPREFIX/drive_c/shared"
check "installs beside another program" ends_with 0 "$work/older-setup.exe" /S '/D=C:\shared'
cp "$work/foreign.exe" "$WINEPREFIX/drive_c/shared/uninstall.exe"
touch "$WINEPREFIX/drive_c/shared/vantrel.exe"
mkdir "$WINEPREFIX/drive_c/foreign"
cp -r "$unpacked/." "$work/foreign.exe" "$WINEPREFIX/drive_c/foreign"
mv "$WINEPREFIX/drive_c/foreign/foreign.exe" "$WINEPREFIX/drive_c/foreign/uninstall.exe"
remember
refuses "what another program would have to remove" '/D=C:\new'
refuses "the same folder again"
refuses "a zip beside another program" '/D=C:\foreign'
check "changes nothing for any" as_remembered
rm -r "$WINEPREFIX/drive_c/foreign" "$WINEPREFIX/drive_c/shared/vantrel.exe"
check "installs where no Vantrel is left beside another program" ends_with 0 \
  "$work/older-setup.exe" /S '/D=C:\new'
check "leaves that program" cmp "$work/foreign.exe" "$WINEPREFIX/drive_c/shared/uninstall.exe"
check "never ran it" test ! -e "$WINEPREFIX/drive_c/ran"
rm -r "$WINEPREFIX/drive_c/shared"
wine 'C:\new\uninstall.exe' /S
check "leaves nothing of it" eventually test ! -e "$WINEPREFIX/drive_c/new"

echo "Installing for all beside one user"
remember
check "installs the older version for one" ends_with 0 "$work/older-setup.exe" /S
check "installs for all" ends_with 0 "$setup" /S /AllUsers
check "files for all" holds_vantrel "$everyone"
check "files of one are gone" test ! -e "$(dirname "$(here_of "$alone")")"
check "nothing is known of one" knows_nothing HKCU
check "start menu of one is gone" test ! -e "$(here_of "$user_menu")/Vantrel.lnk"
is_listed HKLM "$everyone" "$version"
wine "$everyone\\uninstall.exe" /S
check "leaves nothing" eventually as_remembered
check "installs the older version for one" ends_with 0 "$work/older-setup.exe" /S
rm -r "$(dirname "$(here_of "$alone")")"
check "installs for all where that was deleted" ends_with 0 "$setup" /S /AllUsers
check "nothing is known of what was deleted" knows_nothing HKCU
wine "$everyone\\uninstall.exe" /S
check "leaves nothing of both" eventually as_remembered

echo "Upgrading for all"
check "installs the older version for all" ends_with 0 "$work/older-setup.exe" /S /AllUsers
check "upgrades without a word" ends_with 0 "$setup" /S
check "files for all" holds_vantrel "$everyone"
is_listed HKLM "$everyone" "$version"
check "nothing is known of one" knows_nothing HKCU
check "installs for one by a word" ends_with 0 "$setup" /S /CurrentUser
check "files of one" holds_vantrel "$alone"
check "files of all stay" holds_vantrel "$everyone"
check "opens a trial" opens_trial "$alone\\vantrel.exe"
check "no installing for all while that of one runs" ends_with 2 "$setup" /S /AllUsers
check "files of all stay still" holds_vantrel "$everyone"
closes
wine "$alone\\uninstall.exe" /S
check "one is gone" eventually test ! -e "$(dirname "$(here_of "$alone")")"
is_listed HKLM "$everyone" "$version"
wine "$everyone\\uninstall.exe" /S
check "leaves nothing of all" eventually as_remembered

echo "Documents"
# linked_files FOLDER: fails where a link of a page leads nowhere.
linked_files() {
  local page link links=0 dead=0
  for page in "$1"/*.md "$1"/docs/*.md; do
    while IFS= read -r link; do
      links=$((links + 1))
      [ -f "$(dirname "$page")/$link" ] || { echo "$page leads to $link"; dead=1; }
    done < <(grep -oE '\]\([^):#]+[)#]' "$page" | sed 's/^](//; s/.$//')
  done
  [ "$links" -gt 5 ] && [ "$dead" = 0 ]
}
check "links of the documents" linked_files "$unpacked"
# names_sources FILE: names every source of the toolkit as sources.sha256 does, and no address.
names_sources() {
  local source
  while read -r source; do
    grep -qF "$source" "$1" || { echo "does not name $source"; return 1; }
  done < <(sed -n 's/.* \(.*\)_\(.*\)\.dsc$/\1 \2/p' "$root/cmake/mingw/toolkit/sources.sha256")
  ! grep -n '://' "$1"
}
check "sources are named" names_sources "$unpacked/licences/SOURCES.txt"
for change in "$root"/cmake/mingw/toolkit/*.patch; do
  check "${change##*/} is there" cmp "$change" "$unpacked/licences/${change##*/}"
  check "${change##*/} is named" grep -qxF "  ${change##*/}" "$unpacked/licences/SOURCES.txt"
done

echo "Starting with little"
loads_with_it() { x86_64-w64-mingw32-objdump -p "$unpacked/$1" | grep -i "DLL Name: $2" >/dev/null; }
loads_late() { ! loads_with_it "$@"; }
for program in vantrel.exe vantrel-curves.exe; do
  check "$program has windows" loads_with_it "$program" user32.dll
  for library in authz.dll comdlg32.dll d3d11.dll d3d9.dll dxgi.dll netapi32.dll winspool.drv; do
    check "$program loads $library late" loads_late "$program" "$library"
  done
done

echo "Running from the zip"
mkdir "$WINEPREFIX/drive_c/stick ä"
cp -r "$unpacked" "$WINEPREFIX/drive_c/stick ä"
stick="C:\\stick ä\\vantrel-$version"
remember
check "GCD files" same_gcd_files "$stick"
check "opens a trial" opens_trial "$stick\\vantrel.exe"
closes
check "leaves nothing" eventually as_remembered
# What the file beside the program is there for.
rm "$WINEPREFIX/drive_c/stick ä/vantrel-$version/vantrel.exe.manifest1"
check "opens a trial without it" opens_trial "$stick\\vantrel.exe"
closes
check "puts a folder beside itself then" test -d \
  "$WINEPREFIX/drive_c/stick ä/vantrel-$version/Dependencies"

echo "Resources of the installer"
# Texts there have two bytes a letter.
says_version() { tr -d '\0' <"$setup" | grep -a "ProductVersion$version" >/dev/null; }
check "version of the installer" says_version

echo "$((checked - failed)) of $checked checks passed"
[ "$failed" -eq 0 ]
