# SPDX-License-Identifier: GPL-3.0-or-later

# The toolkit of the window: Qt 6 Widgets, Svg for pages of curves, and QScintilla for the output
# pane.
find_package(Qt6 6.4 REQUIRED COMPONENTS PrintSupport Widgets)
if(WIN32)
  include(cmake/mingw/LateLibraries.cmake)
  # The writer of SVG by itself, as cmake/mingw/toolkit builds it.
  find_path(SVGWRITER_INCLUDE_DIR QSvgGenerator PATH_SUFFIXES svgwriter REQUIRED)
  find_library(SVGWRITER_LIBRARY svgwriter REQUIRED)
  add_library(Qt6::Svg UNKNOWN IMPORTED)
  set_target_properties(Qt6::Svg PROPERTIES
    IMPORTED_LOCATION ${SVGWRITER_LIBRARY}
    INTERFACE_INCLUDE_DIRECTORIES ${SVGWRITER_INCLUDE_DIR}
    INTERFACE_COMPILE_DEFINITIONS QT_STATIC
    INTERFACE_LINK_LIBRARIES Qt6::Gui)
else()
  find_package(Qt6 6.4 REQUIRED COMPONENTS Svg)
endif()

find_path(QSCINTILLA_INCLUDE_DIR Qsci/qsciscintilla.h PATH_SUFFIXES qt6 REQUIRED)
find_library(QSCINTILLA_LIBRARY qscintilla2_qt6 REQUIRED)
add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
set_target_properties(QScintilla::QScintilla PROPERTIES
  IMPORTED_LOCATION ${QSCINTILLA_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${QSCINTILLA_INCLUDE_DIR}
  INTERFACE_LINK_LIBRARIES "Qt6::PrintSupport;Qt6::Widgets")

# vantrel_qt_library(NAME SOURCES ... LINKS ...): a library that uses Qt. Bytes and texts of the
# toolkit are converted where it is written, never silently.
function(vantrel_qt_library name)
  vantrel_library(${name} ${ARGN})
  set_target_properties(${name} PROPERTIES AUTOMOC ON UNITY_BUILD OFF)
  target_link_libraries(${name} PUBLIC Qt6::Gui)
  target_compile_definitions(${name} PUBLIC QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                                            QT_NO_FOREACH)
endfunction()

# vantrel_qt_program(NAME): a program that uses Qt. Where the toolkit is part of the program, so is
# what draws without a display, and libraries of the system that a start does not use come late.
function(vantrel_qt_program name)
  if(WIN32)
    qt_import_plugins(${name} INCLUDE Qt6::QOffscreenIntegrationPlugin)
    vantrel_load_late(${name})
  endif()
endfunction()
