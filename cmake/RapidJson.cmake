# SPDX-License-Identifier: GPL-3.0-or-later

# The target of the JSON library, whatever form its package has.
find_package(RapidJSON REQUIRED)
if(NOT TARGET RapidJSON::RapidJSON)
  add_library(RapidJSON::RapidJSON INTERFACE IMPORTED)
  target_include_directories(RapidJSON::RapidJSON INTERFACE ${RAPIDJSON_INCLUDE_DIRS})
endif()
