#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Prints the files and folders below FOLDER for the installer, as macros that hand each to another
# macro: a file as its folder, which is empty or begins with a backslash, and its name.
#   list_files.sh FOLDER
set -euo pipefail
cd "$1"
export LC_ALL=C

echo '!macro EachFile do'
find . -type f -printf '%P\n' | sort | while IFS= read -r file; do
  folder=
  [[ $file != */* ]] || folder=\\${file%/*}
  printf '  !insertmacro ${do} "%s" "%s"\n' "${folder//\//\\}" "${file##*/}"
done
echo '!macroend'

# Folders after those within them.
echo '!macro EachFolder do'
find . -mindepth 1 -type d -printf '%P\n' | sort -r | while IFS= read -r folder; do
  printf '  !insertmacro ${do} "\\%s"\n' "${folder//\//\\}"
done
echo '!macroend'
