# SPDX-License-Identifier: GPL-3.0-or-later

# Toolchain.cmake with the toolkit of the window, which ./setup.sh --windows-window builds. Its
# folder is asked for once; the processes in which CMake tries things out have it from the first.
set(script ${CMAKE_CURRENT_LIST_DIR}/toolkit/build.sh)
if(NOT DEFINED ENV{VANTREL_WINDOWS_TOOLKIT})
  execute_process(COMMAND ${script} --where
    OUTPUT_VARIABLE folder OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{VANTREL_WINDOWS_TOOLKIT} ${folder})
endif()
set(VANTREL_TOOLKIT $ENV{VANTREL_WINDOWS_TOOLKIT})
if(NOT IS_DIRECTORY ${VANTREL_TOOLKIT})
  message(FATAL_ERROR "There is no toolkit in ${VANTREL_TOOLKIT}: "
    "./setup.sh --windows-window builds it.")
endif()
# The tools that run here, of the same version.
set(QT_HOST_PATH /usr)
include(${CMAKE_CURRENT_LIST_DIR}/Toolchain.cmake)

# A build folder that was made with another toolkit finds all of this one.
get_cmake_property(found CACHE_VARIABLES)
foreach(name IN LISTS found)
  string(FIND "$CACHE{${name}}" "${VANTREL_TOOLKIT}" place)
  if(place EQUAL -1 AND "$CACHE{${name}}" MATCHES "/vantrel/windows-toolkit-")
    unset(${name} CACHE)
  endif()
endforeach()
