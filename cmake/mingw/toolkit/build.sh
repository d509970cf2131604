#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds what the window stands on for Windows, Qt with its writer of SVG and QScintilla as
# static libraries, from Debian's sources, once into a folder of the user's cache:
#   cmake/mingw/toolkit/build.sh           builds it unless it is there
#   cmake/mingw/toolkit/build.sh --where   prints the name of that folder and does nothing else
# The name holds a sum over everything that decides what is built, so a change builds anew beside
# what is there, which other copies of the sources may still use; what none uses can be deleted. Of
# several at once one builds and the others wait for it.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
toolchain=$here/../Toolchain.cmake

sum_of_what_decides() {
  {
    cd "$here"
    sha256sum sources.sha256 ./*.patch Options.cmake CMakeLists.txt build.sh ../Toolchain.cmake
    x86_64-w64-mingw32-g++-posix --version
    dpkg-query -W mingw-w64-x86-64-dev qt6-base-dev-tools
  } | sha256sum | cut -c 1-16
}
folder=${XDG_CACHE_HOME:-$HOME/.cache}/vantrel/windows-toolkit-$(sum_of_what_decides)
if [ "${1:-}" = --where ]; then
  echo "$folder"
  exit
fi
work=$folder.building
log=$folder.log

# The sources.list of this system, of either form, with the sources in place of the packages.
list_sources() {
  local sourcelist sourceparts file
  eval "$(apt-config shell sourcelist Dir::Etc::sourcelist/f sourceparts Dir::Etc::sourceparts/d)"
  for file in "$sourcelist" "$sourceparts"/*.list; do
    [ ! -f "$file" ] || sed -n 's/^deb[[:space:]]/deb-src /p' "$file"
  done >"$1/these.list"
  for file in "$sourceparts"/*.sources; do
    [ ! -f "$file" ] || sed 's/^Types:.*/Types: deb-src/' "$file" >"$1/${file##*/}"
  done
}

# Fetches the files of sources.sha256 into `sources/` with lists of apt's own, so that nothing of
# the system changes.
fetch_sources() {
  mkdir -p apt/parts apt/lists apt/cache sources
  list_sources apt/parts
  cat >apt/apt.conf <<END
Dir::Etc::sourcelist "/dev/null";
Dir::Etc::sourceparts "$work/apt/parts";
Dir::State::lists "$work/apt/lists";
Dir::Cache "$work/apt/cache";
END
  export APT_CONFIG=$work/apt/apt.conf
  apt-get update
  local description source
  while read -r _ description; do
    [[ $description = *.dsc ]] || continue
    source=${description%.dsc}
    if ! (cd sources && apt-get source --download-only "${source/_/=}"); then
      echo "Debian does not offer ${source/_/ } here; sources.sha256 says what is fetched."
      exit 1
    fi
  done <"$here/sources.sha256"
  (cd sources && sha256sum --check "$here/sources.sha256")
  dpkg-source --no-check -x sources/qt6-base_*.dsc qtbase
  dpkg-source --no-check -x sources/qscintilla2_*.dsc qscintilla
  dpkg-source --no-check -x sources/qtsvg-opensource-src_*.dsc qtsvg
  local change
  for change in "$here"/*.patch; do
    patch --directory=qtbase --strip=1 <"$change"
  done
}

# What a library holds of the time of its building is the time of its sources, whatever the caller's
# surroundings say: resources would hold that of their files or the caller's.
take_time_of_sources() {
  SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l qtbase/debian/changelog -S Timestamp)
  export SOURCE_DATE_EPOCH LC_ALL=C.UTF-8 TZ=UTC
  unset QT_RCC_SOURCE_DATE_OVERRIDE
}

# configure SOURCE BUILD OPTION...: the paths of this machine do not get into the libraries.
configure() {
  local source=$1 build=$2 flags="-ffile-prefix-map=$work=. -ffile-prefix-map=$work/$1=."
  shift 2
  cmake -S "$source" -B "$build" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$host_cmake" "$@"
}

build_base() {
  configure qtbase qtbase-build -C "$here/Options.cmake"
  ninja -C qtbase-build
  cmake --install qtbase-build --prefix "$work/toolkit"
}

build_rest() {
  configure "$here" rest-build -DCMAKE_BUILD_TYPE=Release -DVANTREL_TOOLKIT="$work/toolkit" \
    -DQSCINTILLA_SOURCE="$work/qscintilla" -DSVG_SOURCE="$work/qtsvg"
  ninja -C rest-build
  cmake --install rest-build --prefix "$work/toolkit"
}

# What their licences ask to hand on with a program that holds them.
keep_licences() {
  mkdir -p toolkit/licences
  cp qtbase/debian/copyright toolkit/licences/qt6-base
  cp qscintilla/debian/copyright toolkit/licences/qscintilla2
  cp qtsvg/debian/copyright toolkit/licences/qtsvg-opensource-src
}

build_all() {
  fetch_sources
  take_time_of_sources
  build_base
  build_rest
  keep_licences
}

# Says how far the build with process $1 is, as the log has it: on a terminal in one line, else in
# one line a minute.
watch_build() {
  local seconds=0 step form='\r%s   '
  [ -t 1 ] || form='%s\n'
  while kill -0 "$1" 2>/dev/null; do
    sleep 1
    seconds=$((seconds + 1))
    [ -t 1 ] || [ $((seconds % 60)) -eq 0 ] || continue
    step=$(grep -ao '^\[[0-9]*/[0-9]*\]' "$log" | tail -n 1 || true)
    # shellcheck disable=SC2059 # the form is one of two
    printf "$form" "$((seconds / 60)) min  ${step:-fetching and configuring}"
  done
  [ ! -t 1 ] || echo
}

mkdir -p "$(dirname "$folder")"
exec 9>"$folder.lock"
if ! flock --nonblock 9; then
  echo "Another process is building the toolkit for Windows; waiting for it."
  flock 9
fi
[ ! -d "$folder" ] || exit 0

host_cmake=/usr/lib/$(gcc -print-multiarch)/cmake
if command -v ccache >/dev/null; then
  export CMAKE_C_COMPILER_LAUNCHER=ccache CMAKE_CXX_COMPILER_LAUNCHER=ccache
  export CCACHE_BASEDIR=$work CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros
fi
rm -rf "$work"
mkdir "$work"
cd "$work"
echo "Building the toolkit for Windows once, into $folder: about 20 minutes on two processors."
set -m  # a process group of its own, which ends with this script
build_all >"$log" 2>&1 </dev/null &
job=$!
set +m
trap 'kill -- "-$job" 2>/dev/null || true' EXIT
watch_build "$job"
if ! wait "$job"; then
  tail -n 30 "$log"
  echo "The toolkit for Windows was not built; all that was said is in $log."
  exit 1
fi
mv toolkit "$folder"
cd /
rm -rf "$work" "$log"
echo "The toolkit for Windows is there after $((SECONDS / 60)) min $((SECONDS % 60)) s."
