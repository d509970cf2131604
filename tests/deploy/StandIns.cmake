# SPDX-License-Identifier: GPL-3.0-or-later

# embed_stand_ins(TARGET): makes the files of "stand-ins" resources of the program TARGET, those that
# end ".manifest" of type "Manifest" and the others of type "Dependencies". On Windows a resource
# script names them, elsewhere a source file holds their bytes.
function(embed_stand_ins target)
  set(folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR})
  set(files "")
  set(entries "")
  foreach(name gaitprobe.exe.manifest comdlg32.ocx mscomct2.ocx mscomctl.ocx richtx32.ocx
               tabctl32.ocx dao360.dll)
    set(file ${folder}/stand-ins/${name})
    list(APPEND files ${file})
    set(type Dependencies)
    if(name MATCHES "[.]manifest$")
      set(type Manifest)
    endif()
    if(WIN32)
      # The language statement also keeps texts on neighbouring lines from being read as one.
      string(APPEND entries "LANGUAGE 0, 0\n\"${name}\" ${type} \"${file}\"\n")
    else()
      file(SIZE ${file} size)
      file(READ ${file} bytes HEX)
      string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
      string(APPEND entries "    {\"${type}\", \"${name}\", {\"${bytes}\", ${size}}},\n")
    endif()
  endforeach()
  set(kind cpp)
  if(WIN32)
    set(kind rc)
  endif()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/StandIns.${kind})
  configure_file(${folder}/StandIns.${kind}.in ${source} @ONLY)
  set_property(SOURCE ${source} APPEND PROPERTY OBJECT_DEPENDS ${files})
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${files})
  target_sources(${target} PRIVATE ${source})
endfunction()
