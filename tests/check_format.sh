#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Fails where a source file is not laid out as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror
