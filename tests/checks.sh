#!/usr/bin/env bash
# The slow checks, run by hand before a release: a build with Clang, clang-tidy on the sources of this
# system and on those of Windows, cppcheck, valgrind on the tool, and the line coverage of the core.
# With an argument, only the check of that name.
#   tests/checks.sh [clang|tidy|tidy_windows|cppcheck|valgrind|coverage]
set -euo pipefail
cd "$(dirname "$0")/.."

./setup.sh --checks

core=(support c3d gait deploy app/reports)

clang() {
  cmake -S . -B build/clang -G Ninja -DCMAKE_CXX_COMPILER=clang++-14 -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_EXPORT_COMPILE_COMMANDS=ON
  cmake --build build/clang
}

tidy() {
  cmake --preset release
  git ls-files -z '*.cpp' ':!:*Windows*' | xargs -0 -P 2 -n 4 clang-tidy -p build/release --quiet
}

# Clang takes the system's headers from the cross-compiler, whose own C++ headers it does not look
# for. Handles that are pointers by another name, or integers, and unions are the system's interface.
tidy_windows() {
  ./setup.sh --windows
  cmake --preset windows
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
    xargs -0 -P 2 -n 4 clang-tidy -p build/windows --quiet "${options[@]}"
}

cppcheck_all() {
  cppcheck --enable=warning,performance,portability --inline-suppr --std=c++20 --quiet \
    --error-exitcode=1 -I . "${core[@]}" cli sample fuzz app
}

# Every report of the sample walk; a leak or a wrong access fails.
valgrind_tool() {
  cmake --preset release
  cmake --build --preset release --target vantrel-report sample-walk
  local walk=build/release/sample-walk.c3d folder
  folder=$(mktemp -d)
  local tool=(valgrind --quiet --leak-check=full --error-exitcode=9 build/release/vantrel-report)
  for report in header parameter-header groups parameters labels events measures tree; do
    "${tool[@]}" "$report" "$walk" >/dev/null
  done
  "${tool[@]}" --label LTOE --events point "$walk" >/dev/null
  "${tool[@]}" --label Fz1 --events analog "$walk" >/dev/null
  "${tool[@]}" --label LKneeAngles normalized "$walk" >/dev/null
  "${tool[@]}" --output-dir "$folder" gcd "$walk" >/dev/null
  rm -r "$folder"
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

case ${1:-all} in
  clang) clang ;;
  tidy) tidy ;;
  tidy_windows) tidy_windows ;;
  cppcheck) cppcheck_all ;;
  valgrind) valgrind_tool ;;
  coverage) coverage ;;
  all)
    clang
    tidy
    tidy_windows
    cppcheck_all
    valgrind_tool
    coverage
    ;;
  *)
    echo "there is no check '$1'" >&2
    exit 2
    ;;
esac
