# SPDX-License-Identifier: GPL-3.0-or-later

# host_headers(FOLDER): makes the header folder /usr/include/FOLDER of this machine, and no other,
# visible to the cross-compiler, and sets HOST_HEADERS to the directory to include from. For
# libraries that are headers alone.
function(host_headers folder)
  if(NOT IS_DIRECTORY /usr/include/${folder})
    message(FATAL_ERROR "There is no /usr/include/${folder}: ./setup.sh installs it.")
  endif()
  set(root ${PROJECT_BINARY_DIR}/include)
  file(MAKE_DIRECTORY ${root})
  file(CREATE_LINK /usr/include/${folder} ${root}/${folder} SYMBOLIC)
  set(HOST_HEADERS ${root} PARENT_SCOPE)
endfunction()
