# embed_stand_ins(OUT): writes a source file that holds the files of "stand-ins" and sets OUT to its
# path.
function(embed_stand_ins out)
  set(folder ${CMAKE_CURRENT_FUNCTION_LIST_DIR}/stand-ins)
  file(GLOB files CONFIGURE_DEPENDS ${folder}/*)
  set(entries "")
  foreach(file ${files})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
    get_filename_component(name ${file} NAME)
    set(type Dependencies)
    if(name MATCHES "[.]manifest$")
      set(type Manifest)
    endif()
    file(SIZE ${file} size)
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
    string(APPEND entries "    {\"${type}\", \"${name}\", {\"${bytes}\", ${size}}},\n")
  endforeach()
  set(source ${CMAKE_CURRENT_BINARY_DIR}/StandIns.cpp)
  file(CONFIGURE OUTPUT ${source} @ONLY CONTENT
"#include \"tests/deploy/StandIns.h\"

namespace tests {

std::span<const StandIn> StandIns() {
  static constexpr StandIn kStandIns[] = {
@entries@  };
  return kStandIns;
}

}  // namespace tests
")
  set(${out} ${source} PARENT_SCOPE)
endfunction()
