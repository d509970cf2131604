#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up, builds and runs every test: the optimised build in the plain and in a comma locale, and
# the core under the sanitizers, its threads included. Without arguments it does all of that; with
# the name of a preset (release, debug, asan) only that build; with --windows the Windows build, under
# Wine, and its tool against this system's; with --windows-window the Windows build with the window,
# whose toolkit is built first where it is not there, its installer and its zip.
set -euo pipefail
cd "$(dirname "$0")"

# What was compiled before is not compiled again, in whatever copy of the sources.
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
  export CCACHE_SLOPPINESS=pch_defines,time_macros
fi

# Many tests wait more than they work.
at_once=$((2 * $(nproc)))

build_and_test() {
  cmake --preset "$1"
  cmake --build --preset "$1"
  ctest --preset "$1" --parallel "$at_once"
}

# A locale whose decimal sign is a comma, made here so that none has to be installed.
test_under_comma_locale() {
  local folder=$PWD/build/locales
  mkdir -p "$folder"
  [ -d "$folder/de_DE.UTF-8" ] || localedef -i de_DE -f UTF-8 "$folder/de_DE.UTF-8"
  LOCPATH=$folder LC_ALL=de_DE.UTF-8 ctest --test-dir build/release --output-on-failure \
    --label-exclude '^one_by_one$' --exclude-regex '^Window(On|Beside)' --parallel "$at_once"
}

# What works in several threads, under the sanitizer of threads; archives need not be large for it.
test_threads() {
  cmake --preset tsan
  cmake --build --preset tsan --target jobs_tests support_tests vantrel-report sample-walk
  build/tsan/support_tests --gtest_brief=1 --gtest_filter='*OrderedWork*:BehindASlowWork.*'
  build/tsan/jobs_tests --gtest_brief=1 --gtest_filter=-LargeArchive.*
}

# The Windows build of the preset $1, set up with --$1.
test_windows() {
  ./setup.sh "--$1"
  cmake --preset release
  cmake --build --preset release --target vantrel-report sample-walk
  build_and_test "$1"
  VANTREL_WINDOWS_PRESET=$1 tests/compare_tools.sh build/release/vantrel-report \
    tests/wine_report.sh build/release/sample-walk.c3d
}

case "${1:-}" in
  --windows)
    test_windows windows
    exit ;;
  --windows-window)
    test_windows windows-window
    packaging/windows/build.sh --pack
    packaging/windows/test.sh build/release/vantrel-report
    exit ;;
esac
./setup.sh
if [ $# -gt 0 ]; then
  build_and_test "$1"
  exit
fi
tests/check_format.sh
build_and_test release
test_under_comma_locale
build_and_test asan
test_threads
