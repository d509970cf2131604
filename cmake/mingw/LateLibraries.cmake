# SPDX-License-Identifier: GPL-3.0-or-later

# Libraries of Windows that the toolkit needs for what a start does not do: printing, the dialogs of
# the system, shares, rights and graphics cards. Each is loaded when the first of its functions is
# called, not with the program. In the order of a link they come before the libraries of the same
# names that load with it; a function that is missing here is an error of the linker.

if(NOT CMAKE_GENERATOR STREQUAL "Ninja")
  message(FATAL_ERROR "Late libraries are found from the folder in which Ninja links; no other does")
endif()

# vantrel_late_library(FILE FUNCTION...): adds that of FILE to VANTREL_LATE_LIBRARIES.
function(vantrel_late_library file)
  cmake_path(GET file STEM name)
  set(folder ${PROJECT_BINARY_DIR}/late)
  set(library ${folder}/lib${name}.a)
  list(JOIN ARGN "\n  " functions)
  file(CONFIGURE OUTPUT ${folder}/${name}.def CONTENT "LIBRARY ${file}\nEXPORTS\n  ${functions}\n" @ONLY)
  add_custom_command(
    OUTPUT ${library}
    # The names of these files, as they are told here, get into the programs: no folder among them.
    COMMAND ${CMAKE_DLLTOOL} --input-def ${name}.def --output-delaylib lib${name}.a
      --temp-prefix ${name}
    DEPENDS ${folder}/${name}.def
    WORKING_DIRECTORY ${folder}
    COMMENT "Making the late library of ${file}"
    VERBATIM)
  set(VANTREL_LATE_LIBRARIES ${VANTREL_LATE_LIBRARIES} ${library} PARENT_SCOPE)
endfunction()

vantrel_late_library(authz.dll
  AuthzAccessCheck AuthzFreeContext AuthzFreeResourceManager AuthzInitializeContextFromSid
  AuthzInitializeContextFromToken AuthzInitializeResourceManager)
vantrel_late_library(comdlg32.dll GetOpenFileNameW GetSaveFileNameW PageSetupDlgW PrintDlgExW)
vantrel_late_library(d3d11.dll D3D11CreateDevice)
vantrel_late_library(d3d9.dll Direct3DCreate9)
vantrel_late_library(dxgi.dll CreateDXGIFactory1 CreateDXGIFactory2)
vantrel_late_library(netapi32.dll NetApiBufferFree NetShareEnum)
vantrel_late_library(winspool.drv
  ClosePrinter DeviceCapabilitiesW DocumentPropertiesW EnumPrintersW GetDefaultPrinterW GetPrinterW
  OpenPrinterW)
add_custom_target(vantrel_late_libraries DEPENDS ${VANTREL_LATE_LIBRARIES})

# What loads them, behind all that calls it.
string(APPEND CMAKE_CXX_STANDARD_LIBRARIES " -ldelayimp")

# vantrel_load_late(NAME): the program NAME loads them late. Ninja links in the build folder, whose
# place must not decide the order of what is imported; so the linker is told the rest of the path.
function(vantrel_load_late name)
  target_link_options(${name} PRIVATE -Llate)
  set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${VANTREL_LATE_LIBRARIES})
  add_dependencies(${name} vantrel_late_libraries)
endfunction()
