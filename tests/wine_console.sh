#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs a Windows program under Wine as tests/wine.sh does, but on a console: Wine's, over a terminal
# of this script's own. Where the system gives no terminals it says so and ends with status 77.
#   tests/wine_console.sh PROGRAM.exe
set -euo pipefail
if ! script --quiet --return --command true /dev/null </dev/null >/dev/null 2>&1; then
  echo "there are no pseudo-terminals here, so there is no console"
  exit 77
fi
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
printf -v command '%q ' "$here/wine.sh" "$@"
exec script --quiet --return --command "$command" /dev/null </dev/null
