# SPDX-License-Identifier: GPL-3.0-or-later

# The end of the names of source files that are written for one system only.
set(VANTREL_SYSTEM Posix)
if(WIN32)
  set(VANTREL_SYSTEM Windows)
endif()

# vantrel_library(NAME SOURCES ... LINKS ...): one layer of the program.
#
# Includes are written from the root of the tree ("c3d/ParamRecord.h"), so that each one shows the
# layer it reaches into; LINKS names the layers below. All layers may become part of the package of
# Python, a shared object, which shows none of their names.
function(vantrel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
  set_target_properties(${name} PROPERTIES
    POSITION_INDEPENDENT_CODE ${VANTREL_PYTHON} CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON)
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE vantrel_warnings)
endfunction()
