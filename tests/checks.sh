#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# The slow checks, run by hand before a release: a build with Clang, clang-tidy on the sources of this
# system and on those of Windows, cppcheck, valgrind on the tool, the line coverage of the core, and the
# manual with its scripts in R and Python, and the types of the package of Python.
# With an argument, only the check of that name; valgrind takes the trials to be read, the sample
# walk without any.
#   tests/checks.sh [clang|tidy|tidy_windows|cppcheck|coverage|manual|types]
#   tests/checks.sh valgrind [FILE.c3d...]
set -euo pipefail
cd "$(dirname "$0")/.."

./setup.sh --checks

core=(support c3d gait visit deploy reports)

clang() {
  cmake -S . -B build/clang -G Ninja -DCMAKE_CXX_COMPILER=clang++-14 -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
  cmake --build build/clang
}

tidy() {
  # Precompiled headers are for one compiler, and each source stands by itself.
  cmake --preset release -B build/tidy -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    -DCMAKE_UNITY_BUILD=OFF -DVANTREL_BENCH=ON
  git ls-files -z '*.cpp' ':!:*Windows*' | xargs -0 -P 2 -n 4 clang-tidy -p build/tidy --quiet
}

# Clang takes the system's headers from the cross-compiler, whose own C++ headers it does not look
# for. Handles that are pointers by another name, or integers, and unions are the system's interface.
tidy_windows() {
  ./setup.sh --windows
  cmake --preset windows -B build/tidy_windows -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON \
    -DCMAKE_UNITY_BUILD=OFF
  local headers options=(--extra-arg=--target=x86_64-w64-mingw32)
  headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include)/c++
  for folder in "$headers" "$headers/x86_64-w64-mingw32" "$headers/backward"; do
    options+=("--extra-arg=-isystem$folder")
  done
  local unchecked=-misc-misplaced-const,-performance-no-int-to-ptr
  unchecked+=,-cppcoreguidelines-pro-type-reinterpret-cast
  unchecked+=,-cppcoreguidelines-pro-type-union-access
  options+=("--checks=$unchecked")
  git ls-files -z '*Windows*.cpp' |
    xargs -0 -P 2 -n 4 clang-tidy -p build/tidy_windows --quiet "${options[@]}"
}

cppcheck_all() {
  cppcheck --enable=warning,performance,portability --inline-suppr --std=c++20 --quiet \
    --error-exitcode=1 -I . "${core[@]}" cli sample fuzz app
}

# Every report of the files, or of the sample walk; a leak or a wrong access fails. That a report
# refuses a file, status 1, is as good an end as any.
valgrind_tool() {
  cmake --preset release
  cmake --build --preset release --target vantrel-report sample-walk
  local tool=$PWD/build/release/vantrel-report folder file report plain_reports
  plain_reports=$(tests/plain_reports.sh "$tool")
  folder=$(mktemp -d)
  under_valgrind() {
    valgrind --quiet --leak-check=full --error-exitcode=9 "$tool" "$@" >/dev/null 2>"$folder/errors" ||
      [ $? -eq 1 ] || { cat "$folder/errors"; return 1; }
  }
  [ $# -gt 0 ] || set -- build/release/sample-walk.c3d
  for file; do
    echo "$file"
    for report in $plain_reports; do
      under_valgrind "$report" "$file"
    done
    local point analog
    point=$(first_label POINT "$file")
    analog=$(first_label ANALOG "$file")
    under_valgrind --label "$point" --events point "$file"
    under_valgrind --label "$analog" --events analog "$file"
    under_valgrind --label "$point" normalized "$file"
    under_valgrind --output-dir "$folder" --overwrite gcd "$file"
  done
  rm -r "$folder"
}

# The first label of group $1 in the tree of file $2.
first_label() {
  build/release/vantrel-report tree "$2" | awk -v group="$1" '
    /^[^ ]/ { inside = $0 == group }
    inside && /^  [^ ]/ { labels = $1 == "LABELS" }
    inside && labels && /^    [^ ]/ { sub(/^ +/, ""); print; exit }' || true
}

# Lines of the core that the tests run, 95 % at least.
coverage() {
  cmake -S . -B build/coverage -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVANTREL_WINDOW=OFF \
    -DCMAKE_CXX_FLAGS="--coverage"
  cmake --build build/coverage
  find build/coverage -name '*.gcda' -delete
  # Damage in bulk has a bound of time that counters in every line do not keep.
  ctest --test-dir build/coverage --parallel 2 --output-on-failure --exclude-regex DamageInBulk
  local filters=()
  for folder in "${core[@]}"; do filters+=(--filter "$folder/"); done
  gcovr --root . --object-directory build/coverage "${filters[@]}" --exclude '.*Windows.*' \
    --fail-under-line 95 --print-summary
}

# The packages of the manual's scripts belong to the system's own Python.
manual() {
  cmake --preset release
  cmake --build --preset release --target vantrel-report vantrel_python sample-walk
  local page
  for page in docs/manual.md docs/python.md; do
    PATH=/usr/bin:$PATH PYTHONPATH=$PWD/build/release/python tests/manual_commands.py --all \
      build/release/vantrel-report build/release/sample-walk.c3d "$page"
  done
}

# The package of Python holds what its annotations and its stub say.
types() {
  /usr/bin/mypy --strict --cache-dir=build/mypy python/vantrel
}

case ${1:-all} in
  clang) clang ;;
  tidy) tidy ;;
  tidy_windows) tidy_windows ;;
  cppcheck) cppcheck_all ;;
  valgrind) valgrind_tool "${@:2}" ;;
  coverage) coverage ;;
  manual) manual ;;
  types) types ;;
  all)
    clang
    tidy
    tidy_windows
    cppcheck_all
    valgrind_tool
    coverage
    manual
    types
    ;;
  *)
    echo "there is no check '$1'" >&2
    exit 2
    ;;
esac
