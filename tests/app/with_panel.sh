#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a command under a virtual display of the size $1 with a window manager, which frames windows
# and keeps 40 pixels at the bottom free of them, as for a panel.
#   with_panel.sh 1366x768 COMMAND...
size=$1
shift
exec xvfb-run -a -s "-screen 0 ${size}x24" sh -c '
  openbox --config-file "$0" &
  for try in 1 2 3 4 5 6 7 8 9 10; do
    xprop -root _NET_WORKAREA | grep -q "= 0" && break
    sleep 0.2
  done
  "$@"
  status=$?
  kill $!
  exit $status' "$(dirname "$0")/panel.xml" "$@"
