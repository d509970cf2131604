#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up, builds and runs every test: the optimised build in the plain and in a comma locale, and
# the core under the sanitizers, its threads included. Without arguments it does all of that; with
# the name of a preset (release, debug, asan) only that build; with --windows the Windows build, under
# Wine, and its tool against this system's; with --windows-window the Windows build with the window,
# whose toolkit is built first where it is not there, its installer and its zip.
set -euo pipefail
cd "$(dirname "$0")"

build_and_test() {
  cmake --preset "$1"
  cmake --build --preset "$1"
  ctest --preset "$1" --parallel 2
}

# A locale whose decimal sign is a comma, made here so that none has to be installed.
test_under_comma_locale() {
  local folder=$PWD/build/locales
  mkdir -p "$folder"
  [ -d "$folder/de_DE.UTF-8" ] || localedef -i de_DE -f UTF-8 "$folder/de_DE.UTF-8"
  LOCPATH=$folder LC_ALL=de_DE.UTF-8 ctest --preset release --parallel 2
}

# What works in several threads, under the sanitizer of threads.
test_threads() {
  cmake --preset tsan
  cmake --build --preset tsan --target jobs_tests support_tests vantrel-report sample-walk
  build/tsan/support_tests --gtest_brief=1 --gtest_filter='*OrderedWork*:BehindASlowWork.*'
  build/tsan/jobs_tests --gtest_brief=1
}

test_windows() {
  ./setup.sh --windows
  cmake --preset release
  cmake --build --preset release --target vantrel-report sample-walk
  build_and_test windows
  tests/compare_tools.sh build/release/vantrel-report tests/wine_report.sh \
    build/release/sample-walk.c3d
}

test_windows_window() {
  ./setup.sh --windows-window
  cmake --preset release
  cmake --build --preset release --target vantrel-report sample-walk
  build_and_test windows-window
  packaging/windows/build.sh --pack
  packaging/windows/test.sh build/release/vantrel-report
}

if [ "${1:-}" = --windows-window ]; then
  test_windows_window
  exit
fi
if [ "${1:-}" = --windows ]; then
  test_windows
  exit
fi
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
