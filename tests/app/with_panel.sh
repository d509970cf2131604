#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a command under a virtual display of the size $1 with a window manager, which frames windows
# and keeps 40 pixels at the bottom free of them, as for a panel.
#   with_panel.sh 1366x768 COMMAND...
# The window manager takes no path that is not absolute, and then says nothing and keeps nothing free.
here=$(cd "$(dirname "$0")" && pwd)
size=$1
shift
exec xvfb-run -a -s "-screen 0 ${size}x24" sh -c '
  openbox --config-file "$0" &
  free="= 0, 0, ${1%x*}, $((${1#*x} - 40)),"
  shift
  for try in 1 2 3 4 5 6 7 8 9 10; do
    xprop -root _NET_WORKAREA | grep -q "$free" && break
    sleep 0.2
  done
  if xprop -root _NET_WORKAREA | grep -q "$free"; then
    "$@"
    status=$?
  else
    echo "with_panel.sh: the window manager keeps nothing free" >&2
    status=1
  fi
  kill $!
  exit $status' "$here/panel.xml" "$size" "$@"
