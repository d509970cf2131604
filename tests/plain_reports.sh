#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The reports of a tool that need nothing but a trial and write no files, by name, as its help lists
# them.
#   tests/plain_reports.sh TOOL
set -euo pipefail
"$1" --help | awk '
  inside && /^$/ { exit }
  inside && !/\(needs |takes --output-dir/ { print $1; found = 1 }
  /^Reports:/ { inside = 1 }
  END { exit !found }'
