# SPDX-License-Identifier: GPL-3.0-or-later

# fmt::fmt without a library: its headers hold everything.
include(${CMAKE_CURRENT_LIST_DIR}/HostHeaders.cmake)
if(NOT TARGET fmt::fmt)
  host_headers(fmt)
  add_library(fmt::fmt INTERFACE IMPORTED)
  target_include_directories(fmt::fmt INTERFACE ${HOST_HEADERS})
  target_compile_definitions(fmt::fmt INTERFACE FMT_HEADER_ONLY)
endif()
set(fmt_FOUND TRUE)
