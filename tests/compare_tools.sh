#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Holds two builds of vantrel-report against each other:
#   tests/compare_tools.sh TOOL WINDOWS-TOOL FILE.c3d
# Every report of FILE, from a folder with blanks and letters outside ASCII in its name, must have
# the same characters and exit status from both, its GCD files the same bytes. An output that nobody
# reads any more must end either quietly. Wildcards, which the shell resolves for the one, the other
# must resolve itself. It must also read and write files under the ways in which Windows alone writes
# a path, a share of another machine among them; for that one it must run under tests/wine.sh.
set -euo pipefail
unc=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/wine/dosdevices/unc
tests=$(dirname "$(realpath -- "${BASH_SOURCE[0]}")")
one=$(realpath -- "$1") other=$(realpath -- "$2") trial=$(realpath -- "$3")
failed=0 compared=0

work=$(mktemp -d)
trap 'rm -rf "$work" "$unc/vantrel-test"' EXIT
folder="$work/Grüße, 歩行 an Müller €"
mkdir "$folder"
cp -- "$trial" "$folder/Gang 1 ä.c3d"
cd "$folder"
file='Gang 1 ä.c3d'

complain() {
  echo "differs: $*"
  failed=$((failed + 1))
}

# run TOOL NAME ARGUMENT...: leaves NAME.out, NAME.err and NAME.status in $work.
run() {
  local tool=$1 name=$2 status=0
  shift 2
  "$tool" "$@" >"$work/$name.out" 2>"$work/$name.err" || status=$?
  echo "$status" >"$work/$name.status"
}

# same_output WHAT: what the last two runs printed, and their exit statuses.
same_output() {
  local part
  compared=$((compared + 1))
  for part in out err status; do
    cmp -s "$work/one.$part" "$work/other.$part" || complain "$part: $1"
  done
}

# same STATUS ARGUMENT...: both tools end with STATUS and print the same.
same() {
  local status=$1
  shift
  run "$one" one "$@"
  run "$other" other "$@"
  [ "$(cat "$work/one.status")" = "$status" ] || complain "exit status, not $status: $*"
  same_output "$*"
}

# same_files ARGUMENT...: both tools write the same GCD files, one at least, and print the same.
same_files() {
  local name
  for name in one other; do
    mkdir "$work/ä out"
    run "${!name}" "$name" --output-dir "$work/ä out" "$@" gcd "$file"
    mv "$work/ä out" "$work/$name files"
  done
  same_output "gcd $*"
  compgen -G "$work/one files/*.gcd" >/dev/null || complain "no GCD files: $*"
  diff -r "$work/one files" "$work/other files" || complain "GCD files: $*"
  rm -r "$work/one files" "$work/other files"
}

# quiet_when_closed TOOL: a report longer than a pipe holds, of which one line is read.
quiet_when_closed() {
  local tool=$1
  local files=()
  for _ in {1..60}; do files+=("$file"); done
  {
    run_status=0
    "$tool" parameters "${files[@]}" 2>"$work/closed.err" || run_status=$?
    echo "$run_status" >"$work/closed.status"
  } | head -n 1 >/dev/null
  compared=$((compared + 1))
  [ "$(cat "$work/closed.status")" = 0 ] || complain "exit status with a closed pipe: $tool"
  [ ! -s "$work/closed.err" ] || complain "a message with a closed pipe: $tool"
}

# same_wildcard FOLDER: the files that "*.c3d" stands for in FOLDER, which ends with a slash.
same_wildcard() {
  run "$one" one groups "$1"*.c3d
  run "$other" other groups "$1*.c3d"
  [ "$(grep -c '^==> ' "$work/other.out")" = 2 ] || complain "not two files: $1*.c3d"
  same_output "$1*.c3d"
}

# same_under PREFIX: two trials of the folder $work/share, which PREFIX is a name of: their GCD files
# are made, refused to be overwritten, and overwritten, as those of the one tool.
same_under() {
  local prefix=$1 step file
  local files=("$prefix\\walk 1 ä.c3d" "$prefix\\walk 2.c3d")
  rm -f "$work/share"/*.gcd
  for step in 'gcd 0' 'gcd 1' 'gcd --overwrite 0'; do
    local arguments=(${step% *}) status=${step##* }
    run "$other" other "${arguments[@]}" "${files[@]}"
    compared=$((compared + 1))
    [ "$(cat "$work/other.status")" = "$status" ] || complain "exit status, not $status: $step: $1"
    if [ "$status" = 0 ]; then
      diff -r "$work/one share" "$work/share" || complain "GCD files: $step: $1"
      for file in "$work/share"/*.gcd; do echo old >"$file"; done
    else
      [ "$(sort -u "$work/share"/*.gcd)" = old ] || complain "overwritten: $step: $1"
    fi
  done
  run "$other" other groups "$prefix\\w*.C3D"
  [ "$(grep -c '^==> ' "$work/other.out")" = 2 ] || complain "not two files: $1\\w*.C3D"
}

plain_reports=$("$tests/plain_reports.sh" "$one")
point=$("$one" labels "$file" | sed -n 's/^001  //p')
analog=$("$one" --group analog --param labels parameters "$file" |
  sed -n "s/ *txt(1,1,1,1,1,1) *'\(.*\)'/\1/p")
for report in $plain_reports; do
  same 0 "$report" "$file"
done
same 0 --group point parameters "$file"
same 0 --group point --param scale parameters "$file"
for report in point normalized; do same 0 --label "$point" "$report" "$file"; done
same 0 --label "$analog" analog "$file"
same 0 --events --label "$point" point "$file"
same 0 --events --label "$analog" analog "$file"
"$one" --format csv norms "$file" >'nörmal.csv'
same 0 --normal 'nörmal.csv' scores "$file"
same 1 --normal 'nö such.csv' scores "$file"
for format in csv json; do same 0 --format "$format" measures "$file"; done
same 0 header "$file" "$file"
same 0 --version
same 0 --help
same 1 --label 'nö such' point "$file"
same 1 header 'nö such.c3d' "$file"
same 1 header .
same 2 --label x 'nö report' "$file"
same_files
same_files --gender Weiblich-ä --date-of-birth 1990-02-28 --visit-date 2026-11-20
cp -- "$file" 'Gang 2 ö.c3d'
same_wildcard ''
same_wildcard "$folder/"
same 1 groups '*.d3c'
mkdir "$work/share" "$work/one share"
for name in share 'one share'; do
  cp -- "$trial" "$work/$name/walk 1 ä.c3d"
  cp -- "$trial" "$work/$name/walk 2.c3d"
done
run "$one" one gcd "$work/one share"/*.c3d
windows_work="Z:${work//\//\\}"
mkdir -p "$unc/vantrel-test"
ln -s "$work/share" "$unc/vantrel-test/Freigabe ü"
same_under '\\vantrel-test\Freigabe ü'
same_under '\\?\UNC\vantrel-test\Freigabe ü'
same_under "\\\\?\\$windows_work\\share"
same_under "$windows_work\\share"
quiet_when_closed "$one"
quiet_when_closed "$other"

echo "$compared comparisons, $failed failed"
[ "$failed" = 0 ]
