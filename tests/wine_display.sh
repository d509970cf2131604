#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program under Wine on a virtual display of its own, in a Wine folder that programs
# without a display do not use:
#   tests/wine_display.sh PROGRAM.exe [ARGUMENT...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
wine=/usr/lib/wine
if [ -z "${VANTREL_WINE_DISPLAY:-}" ]; then
  export VANTREL_WINE_DISPLAY=${VANTREL_SCREEN:-1366x768}
  exec xvfb-run -a -s "-screen 0 ${VANTREL_WINE_DISPLAY}x24" "$here/wine_display.sh" "$@"
fi

export WINEPREFIX=$here/../build/wine-display WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
mkdir -p "$WINEPREFIX"
WINEPREFIX=$(cd "$WINEPREFIX" && pwd)
status=0
"$wine/wine64" "$@" || status=$?
# Wine's desktop ends before its display does.
"$wine/wineserver64" --kill || true
"$wine/wineserver64" --wait || true
exit "$status"
