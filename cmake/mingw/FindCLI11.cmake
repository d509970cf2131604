# SPDX-License-Identifier: GPL-3.0-or-later

# CLI11::CLI11, which is headers alone.
include(${CMAKE_CURRENT_LIST_DIR}/HostHeaders.cmake)
if(NOT TARGET CLI11::CLI11)
  host_headers(CLI)
  add_library(CLI11::CLI11 INTERFACE IMPORTED)
  target_include_directories(CLI11::CLI11 INTERFACE ${HOST_HEADERS})
endif()
set(CLI11_FOUND TRUE)
