#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program under Wine on a virtual display of its own, in a Wine folder that programs
# without a display do not use, or a program of this system that starts such programs by "$WINE":
#   tests/wine_display.sh PROGRAM.exe [ARGUMENT...]
#   tests/wine_display.sh PROGRAM [ARGUMENT...]
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
wine=/usr/lib/wine
if [ -z "${VANTREL_WINE_DISPLAY:-}" ]; then
  export VANTREL_WINE_DISPLAY=${VANTREL_SCREEN:-1366x768}
  exec xvfb-run -a -s "-noreset -screen 0 ${VANTREL_WINE_DISPLAY}x24" "$here/wine_display.sh" "$@"
fi

export WINEPREFIX=$here/../build/wine-display WINEDEBUG=-all LC_ALL=C.UTF-8
export WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe='
mkdir -p "$WINEPREFIX"
WINEPREFIX=$(cd "$WINEPREFIX" && pwd)
export WINE=$wine/wine64
fonts=$here/wine_fonts.reg
if ! cmp --quiet "$fonts" "$WINEPREFIX/fonts.reg"; then
  "$WINE" regedit /S "Z:$fonts"
  cp "$fonts" "$WINEPREFIX/fonts.reg"
fi
# As on every desktop; without them Wine looks for a file of them at each choice of a font.
xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER 'Xft.antialias: 1'
# Without a window manager Wine waits for seconds until a window is gone.
openbox &
[[ $1 != *.exe ]] || set -- "$WINE" "$@"
status=0
"$@" || status=$?
# Wine's desktop ends before its display does.
"$wine/wineserver64" --kill || true
"$wine/wineserver64" --wait || true
exit "$status"
