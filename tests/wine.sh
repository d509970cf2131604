#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program under Wine, without a display and in a Wine folder of the build's own:
#   tests/wine.sh PROGRAM.exe [ARGUMENT...]
# Wine's own processes stay for ten seconds after the last program, since starting them takes longer
# than most programs run.
set -euo pipefail
build=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build
wine=/usr/lib/wine

export WINEPREFIX=$build/wine WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
unset DISPLAY

# Makes the Wine folder where there is none, and starts Wine's own processes unless they run. On a
# machine that is busy they may not be there in the time that they are given.
start_wine() {
  "$wine/wineserver64" --persistent=10 || return 0
  for _ in 1 2 3; do
    "$wine/wine64" wineboot && return
  done
}

# One call at a time. What is started must hold neither the lock nor the caller's output.
mkdir -p "$build"
exec 9>"$build/wine.lock"
flock 9
if ! start_wine 9>&- >/dev/null 2>&1 </dev/null; then
  echo "$0: Wine does not start" >&2
  exit 1
fi
exec 9>&-
# A share of another machine, as far as programs can tell. A Wine folder that is not made yet must be
# empty for that.
[ ! -d "$WINEPREFIX/drive_c" ] || mkdir -p "$WINEPREFIX/dosdevices/unc/vantrel-share/tests"
exec "$wine/wine64" "$@"
