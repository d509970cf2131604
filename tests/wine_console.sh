#!/usr/bin/env bash
# Runs a Windows program under Wine as tests/wine.sh does, but on a console: Wine's, over a terminal
# of this script's own.
#   tests/wine_console.sh PROGRAM.exe
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
printf -v command '%q ' "$here/wine.sh" "$@"
exec script --quiet --return --command "$command" /dev/null </dev/null
