#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The Windows build of vantrel-report as a command of this system:
#   tests/wine_report.sh [OPTION...] REPORT FILE...
# VANTREL_WINDOWS_PRESET names another preset than "windows".
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
exec "$here/wine.sh" "$here/../build/${VANTREL_WINDOWS_PRESET:-windows}/vantrel-report.exe" "$@"
