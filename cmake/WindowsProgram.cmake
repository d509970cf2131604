# SPDX-License-Identifier: GPL-3.0-or-later

# What a program of Windows carries besides its code: the icon in every size, its version, and the
# manifest. Elsewhere there is nothing to add.
if(NOT WIN32)
  function(vantrel_windows_program)
  endfunction()
  return()
endif()

find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_program(ICOTOOL icotool REQUIRED)
set(VANTREL_ICON ${PROJECT_BINARY_DIR}/icon/vantrel.ico)
set(drawing ${PROJECT_SOURCE_DIR}/packaging/desktop/vantrel.svg)
set(commands)
set(pictures)
foreach(size 16 20 24 32 40 48 64)
  list(APPEND commands COMMAND ${RSVG_CONVERT} -w ${size} -h ${size} ${drawing} -o icon/${size}.png)
  list(APPEND pictures icon/${size}.png)
endforeach()
add_custom_command(
  OUTPUT ${VANTREL_ICON}
  COMMAND ${CMAKE_COMMAND} -E make_directory icon
  ${commands}
  COMMAND ${RSVG_CONVERT} -w 256 -h 256 ${drawing} -o icon/256.png
  COMMAND ${ICOTOOL} --create --output ${VANTREL_ICON} ${pictures} --raw icon/256.png
  DEPENDS ${drawing}
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMENT "Making the icon"
  VERBATIM)
add_custom_target(vantrel_icon DEPENDS ${VANTREL_ICON})

# vantrel_windows_program(NAME DESCRIPTION): the program NAME carries them, is the same byte for byte
# whenever it is linked, and lies in its file as in memory, so that a start reads what it needs.
function(vantrel_windows_program name description)
  set(manifest ${PROJECT_SOURCE_DIR}/cmake/mingw/Program.manifest)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${name}.rc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/mingw/Program.rc.in ${resources} @ONLY)
  set_property(SOURCE ${resources} PROPERTY OBJECT_DEPENDS ${manifest} ${VANTREL_ICON})
  target_sources(${name} PRIVATE ${resources})
  target_link_options(${name} PRIVATE -s -Wl,--no-insert-timestamp,--file-alignment=4096)
  add_dependencies(${name} vantrel_icon)
endfunction()
