# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
# What the cases of test.sh are written with: checks that are counted, and what they look at in the
# Wine folder WINEPREFIX. Reads what test.sh sets: work, wine, setup, unpacked, version, tool, icon.

failed=0 checked=0
# check WHAT COMMAND...: counts WHAT as a failure unless COMMAND ends well.
check() {
  local what=$1
  shift
  checked=$((checked + 1))
  "$@" || {
    echo "FAILED: $what"
    failed=$((failed + 1))
  }
}

# eventually COMMAND...: whether COMMAND ends well within a minute; an uninstaller goes on after the
# process that was started.
eventually() {
  local end=$((SECONDS + 60))
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $end ] || { "$@"; return; }
    sleep 0.2
  done
}

wine() { "$wine/wine64" "$@" </dev/null; }

# ends_with STATUS PROGRAM ARGUMENT...
ends_with() {
  local expected=$1 status=0
  shift
  wine "$@" >"$work/printed" 2>&1 || status=$?
  [ "$status" = "$expected" ] || {
    echo "status $status instead of $expected"
    cat "$work/printed"
    return 1
  }
}

# Wine's own processes stay till the end: starting them takes longer than most programs run, and
# writes into the registry.
start_wine() {
  mkdir -p "$WINEPREFIX"
  "$wine/wineserver64" --persistent
  wine wineboot >/dev/null 2>&1
  # Windows that nobody sees.
  wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f >/dev/null
}

# The folder of Windows that a path like C:\Users\name stands for, here.
here_of() { echo "$WINEPREFIX/drive_c/$(tr '\\' / <<<"${1#?:\\}")"; }

# Prints the registry of the user and of the machine's programs.
registry() {
  local key
  for key in HKCU 'HKLM\Software'; do
    wine reg export "$key" "$work/exported.reg" /y >/dev/null 2>&1
    iconv -f UTF-16 -t UTF-8 "$work/exported.reg"
  done
}

# Prints every file and folder there is, with sums, but for the user's settings and the folders that
# Windows itself keeps or clears.
files() {
  (cd "$WINEPREFIX/drive_c" &&
    find . \( -path ./windows -o -path '*/Temp' -o -path '*/AppData/Local/vantrel' \) -prune -o \
      \( -type f -exec sha256sum {} + \) -o -print | sort)
}

remember() {
  registry >"$work/registry"
  files >"$work/files"
}
as_remembered() {
  diff "$work/files" <(files) && diff "$work/registry" <(registry)
}

# value KEY NAME: the value in the registry, as an export writes it but without its quotation; of no
# name, the default one.
value() {
  local name="\"$2\""
  [ -n "$2" ] || name=@
  rm -f "$work/value.reg"
  wine reg export "$1" "$work/value.reg" /y >/dev/null 2>&1 || return 0
  # The key's own values stand behind three lines, up to an empty one.
  iconv -f UTF-16 -t UTF-8 "$work/value.reg" | tr -d '\r' | sed -n '4,/^$/p' |
    { grep -F -m 1 "$name=" || true; } | sed 's/^[^=]*=//; s/^"\(.*\)"$/\1/; s/\\\(.\)/\1/g'
}
# has KEY NAME VALUE
has() {
  local found
  found=$(value "$1" "$2")
  [ "$found" = "$3" ] || { echo "$1 $2 is: $found, not: $3"; return 1; }
}

# offers_trials HIVE FOLDER: what the desktop is told of Vantrel in FOLDER.
offers_trials() {
  local classes="$1\\Software\\Classes" command="\"$2\\vantrel.exe\" \"%1\""
  check "Open with, program" has "$classes\\Applications\\vantrel.exe\\shell\\open\\command" '' \
    "$command"
  check "Open with, type" has "$classes\\Vantrel.Trial\\shell\\open\\command" '' "$command"
  check "icon" has "$classes\\Vantrel.Trial\\DefaultIcon" '' "$2\\vantrel.exe,0"
  check "types of the program" wine reg query "$classes\\Applications\\vantrel.exe\\SupportedTypes" \
    /v .c3d >/dev/null
  check "program of the type" wine reg query "$classes\\.c3d\\OpenWithProgids" /v Vantrel.Trial \
    >/dev/null
  local menu="$classes\\SystemFileAssociations\\.c3d\\shell\\Vantrel"
  check "context entry" has "$menu" '' 'Open in Vantrel'
  check "context entry, command" has "$menu\\command" '' "$command"
  check "type left to the other program" has "$classes\\.c3d" '' Other.Trial
}

# values KEY: prints every value in the registry as NAME=VALUE, in the order of names.
values() {
  rm -f "$work/value.reg"
  wine reg export "$1" "$work/value.reg" /y >/dev/null 2>&1 || return 0
  iconv -f UTF-16 -t UTF-8 "$work/value.reg" | tr -d '\r' | sed -n '4,/^$/p' |
    sed '/^$/d; s/^"\([^"]*\)"=/\1=/; s/="\(.*\)"$/=\1/; s/\\\(.\)/\1/g' | sort
}

listing='Software\Microsoft\Windows\CurrentVersion\Uninstall\Vantrel'

# is_listed HIVE FOLDER VERSION: what "Apps & features" shows.
is_listed() {
  values "$1\\$listing" >"$work/values"
  check "what is listed" diff - <(grep -Ev '^(EstimatedSize|MadeFolders)=' "$work/values") <<END
DisplayIcon=$2\\vantrel.exe,0
DisplayName=Vantrel
DisplayVersion=$3
InstallLocation=$2
NoModify=dword:00000001
NoRepair=dword:00000001
Publisher=Vantrel maintainers
QuietUninstallString="$2\\uninstall.exe" /S
UninstallString="$2\\uninstall.exe"
END
  check "size" says_size "$(sed -n 's/^EstimatedSize=dword://p' "$work/values")"
}

# says_size SIZE: in whole kilobytes, as the installer says before it; the uninstaller is not counted.
says_size() {
  local bytes
  bytes=$(find "$unpacked" -type f -printf '%s\n' | awk '{ sum += $1 } END { print sum }')
  [ "$((16#$1))" -eq "$((bytes / 1024))" ]
}

# holds_vantrel FOLDER: nothing but what the zip holds, and the uninstaller.
holds_vantrel() {
  local only
  only=$(diff -rq "$unpacked" "$(here_of "$1")" || true)
  [ "$only" = "Only in $(here_of "$1"): uninstall.exe" ] || { echo "$only"; return 1; }
}

# same_gcd_files FOLDER: the installed tool makes of a trial in a folder with blanks and umlauts what
# this system's does.
same_gcd_files() {
  local side
  for side in ours theirs; do
    mkdir -p "$work/$side/Ganganalyse Müller & Söhne"
    cp "$unpacked/sample-walk.c3d" "$work/$side/Ganganalyse Müller & Söhne/Gang 1 ä.c3d"
  done
  (cd "$work/ours/Ganganalyse Müller & Söhne" && "$tool" gcd 'Gang 1 ä.c3d' >../printed)
  (cd "$work/theirs/Ganganalyse Müller & Söhne" &&
    wine "$1\\vantrel-report.exe" gcd 'Gang 1 ä.c3d' >../printed)
  test -e "$work/ours/Ganganalyse Müller & Söhne/Gang 1 ä-L1.gcd"
  diff -r "$work/ours" "$work/theirs"
  rm -r "$work/ours" "$work/theirs"
}

settings=AppData/Local/vantrel/vantrel.ini

# opens_trial PROGRAM: PROGRAM, which goes on running, has opened a trial, and remembers it.
opens_trial() {
  local folder="$WINEPREFIX/drive_c/Ganganalyse Müller & Söhne" user
  user=$(here_of "$(wine cmd /c 'echo %USERPROFILE%' | tr -d '\r')")
  mkdir -p "$folder"
  cp "$unpacked/sample-walk.c3d" "$folder/Gang 1 ä.c3d"
  rm -f "$user/$settings"
  wine "$1" -platform offscreen 'C:\Ganganalyse Müller & Söhne\Gang 1 ä.c3d' >/dev/null 2>&1 &
  eventually grep -q 'Gang%\(25\)\?201' "$user/$settings"
}

closes() {
  wine taskkill /f /im vantrel.exe >/dev/null 2>&1
  wait
  rm -rf "$WINEPREFIX/drive_c/Ganganalyse Müller & Söhne"
}

# make_setup VERSION FILES OUTPUT [KILOBYTES]: an installer of other files.
make_setup() {
  "$here/list_files.sh" "$2" >"$work/files.nsh"
  pbmmake -white 164 314 | ppmtobmp -quiet -windows -bpp 24 >"$work/side.bmp"
  makensis -V1 -INPUTCHARSET UTF8 -DVERSION="$1" -DFILES="$2" -DLIST="$work/files.nsh" \
    -DICON="$icon" -DPICTURE="$work/side.bmp" -DKILOBYTES="${4:-1}" -DOUTPUT="$3" "$here/vantrel.nsi"
}

# make_program OUTPUT LINE...: a program that shows nothing and does what these lines of a script say.
make_program() {
  local output=$1
  shift
  printf '%s\n' 'Target amd64-unicode' 'SilentInstall silent' 'RequestExecutionLevel user' \
    "OutFile \"$output\"" Section "$@" SectionEnd >"$work/program.nsi"
  makensis -V1 -INPUTCHARSET UTF8 "$work/program.nsi"
}

# holds FILE: a program has FILE of Windows open and lets nobody else write or delete it.
holds() {
  make_program "$work/hold.exe" "FileOpen \$0 \"$1\" r" 'FileOpen $1 "C:\held" w' 'FileClose $1' \
    'Sleep 600000'
  wine "$work/hold.exe" >/dev/null 2>&1 &
  eventually test -e "$WINEPREFIX/drive_c/held"
}
lets_go() {
  wine taskkill /f /im hold.exe >/dev/null 2>&1
  wait
  rm "$WINEPREFIX/drive_c/held"
}

# asks_first PROGRAM ARGUMENT...: PROGRAM, an uninstaller which goes on running, shows its first page.
asks_first() {
  make_program "$work/asks.exe" 'FindWindow $0 "#32770" "Vantrel Uninstall "' 'SetErrorLevel $0'
  wine "$@" >/dev/null 2>&1 &
  asking=$!
  eventually is_shown
}
is_shown() { ! wine "$work/asks.exe"; }

# gives_up: the uninstaller that asks begins to remove, shows a text, and ends with 2 where it is told
# not to try again.
gives_up() {
  local status=0
  make_program "$work/press.exe" 'FindWindow $0 "#32770" "Vantrel Uninstall "' \
    'System::Call "user32::PostMessageW(p r0, i 0x111, p 1, p 0)"' 'StrCpy $2 0' 'StrCpy $1 0' \
    'next:' 'FindWindow $1 "#32770" "" 0 $1' 'IntCmp $1 $0 next' 'IntCmp $1 0 0 found found' \
    'Sleep 100' 'IntOp $2 $2 + 1' 'IntCmp $2 100 0 next' \
    'System::Call "user32::PostMessageW(p r0, i 0x10, p 0, p 0)"' Abort \
    'found:' 'System::Call "user32::PostMessageW(p r1, i 0x111, p 2, p 0)"'
  wine "$work/press.exe" || wine taskkill /f /im uninstall.exe >/dev/null 2>&1
  wait "$asking" || status=$?
  [ "$status" = 2 ]
}

# installs_and_leaves_nothing HIVE FOLDER OPTION...: into FOLDER, and out of it.
installs_and_leaves_nothing() {
  local hive=$1 folder=$2 menu=$3
  shift 3
  echo "Installing into $folder"
  check "installs" ends_with 0 "$setup" /S "$@"
  check "files" holds_vantrel "$folder"
  check "start menu" test -s "$(here_of "$menu")/Vantrel.lnk"
  offers_trials "$hive" "$folder"
  is_listed "$hive" "$folder" "$version"
  check "GCD files" same_gcd_files "$folder"
  check "opens a trial" opens_trial "$folder\\vantrel.exe"
  check "nothing is put beside the program" holds_vantrel "$folder"
  check "no installing while it runs" ends_with 2 "$setup" /S "$@"
  wine "$folder\\uninstall.exe" /S
  sleep 2
  check "no removing while it runs" holds_vantrel "$folder"
  closes
  wine "$folder\\uninstall.exe" /S
  check "leaves nothing" eventually as_remembered
}
