# SPDX-License-Identifier: GPL-3.0-or-later

# Builds for 64-bit Windows with Debian's MinGW-w64. Programs carry their run-time library in
# themselves and run during the build, and in tests, under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../tests/wine.sh)

# Nothing of this machine's own libraries is found; the Find modules beside this file bring those
# that are used, from their sources. VANTREL_TOOLKIT is a folder of libraries built for Windows.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32 ${VANTREL_TOOLKIT})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
list(PREPEND CMAKE_MODULE_PATH ${CMAKE_CURRENT_LIST_DIR})
