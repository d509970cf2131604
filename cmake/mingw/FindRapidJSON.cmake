# SPDX-License-Identifier: GPL-3.0-or-later

# RapidJSON::RapidJSON, which is headers alone.
include(${CMAKE_CURRENT_LIST_DIR}/HostHeaders.cmake)
if(NOT TARGET RapidJSON::RapidJSON)
  host_headers(rapidjson)
  add_library(RapidJSON::RapidJSON INTERFACE IMPORTED)
  target_include_directories(RapidJSON::RapidJSON INTERFACE ${HOST_HEADERS})
endif()
set(RapidJSON_FOUND TRUE)
