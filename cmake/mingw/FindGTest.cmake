# SPDX-License-Identifier: GPL-3.0-or-later

# GTest::gtest and its relatives, built from the sources of Debian's package googletest.
if(NOT TARGET GTest::gtest)
  set(INSTALL_GTEST OFF)
  add_subdirectory(/usr/src/googletest ${PROJECT_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
endif()
set(GTest_FOUND TRUE)
