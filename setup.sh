#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian packages that building and testing need and that are missing; with --windows
# also those for the Windows build, with --windows-window those of the window there too, and builds
# its toolkit, once.
set -euo pipefail

packages=(
  appstream ccache clang-14 clang-format clang-tidy cmake desktop-file-utils dpkg-dev fonts-dejavu-core
  fonts-liberation g++ git libbenchmark-dev libclang-rt-14-dev libcli11-dev libfmt-dev
  libgmock-dev libgtest-dev libqscintilla2-qt6-dev librsvg2-bin lintian locales man-db
  ninja-build openbox parallel poppler-utils pybind11-dev python3 python3-dev python3-numpy
  python3-pytest qt6-base-dev qt6-base-private-dev qt6-svg-dev qt6-wayland rapidjson-dev shared-mime-info
  x11-utils xauth xvfb
)

# With its preloader Wine has the addresses to itself that it needs; otherwise a start in some
# thousands ends for the heap's lying there.
wine=(wine64 wine64-preloader)

case "${1:-}" in
  '') ;;
  --windows) packages+=(g++-mingw-w64-x86-64 googletest icoutils "${wine[@]}") ;;
  --windows-window)
    packages+=(g++-mingw-w64-x86-64 googletest icoutils netpbm nsis "${wine[@]}") ;;
  --checks)
    packages+=(cppcheck gcovr mypy valgrind)
    # For the scripts of the manual.
    packages+=(python3-matplotlib python3-pandas r-base-core r-cran-readr) ;;
  *)
    echo "setup.sh: $1 is none of --windows, --windows-window, --checks" >&2
    exit 2 ;;
esac

missing=()
for package in "${packages[@]}"; do
  status=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$status" = installed ] || missing+=("$package")
done
if [ ${#missing[@]} -gt 0 ]; then
  as_root=()
  [ "$(id -u)" -eq 0 ] || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
fi
[ "${1:-}" != --windows-window ] || "$(dirname "$0")/cmake/mingw/toolkit/build.sh"
