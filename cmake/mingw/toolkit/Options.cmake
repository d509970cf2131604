# SPDX-License-Identifier: GPL-3.0-or-later

# What the toolkit's base is built with for Windows: its own copies of the libraries that Windows
# does not bring, and nothing that the window does not use.
function(toolkit_option value)
  foreach(name IN LISTS ARGN)
    set(${name} ${value} CACHE BOOL "")
  endforeach()
endfunction()

set(CMAKE_BUILD_TYPE Release CACHE STRING "")
# Stands in the libraries, so it is the same wherever they are built.
set(CMAKE_INSTALL_PREFIX /windows-toolkit CACHE PATH "")
set(INPUT_opengl no CACHE STRING "")
# Without Direct2D the sources that use DirectWrite are left out, so neither is asked for.
toolkit_option(OFF
  BUILD_SHARED_LIBS QT_BUILD_EXAMPLES QT_BUILD_TESTS QT_BUILD_TOOLS_BY_DEFAULT
  FEATURE_concurrent FEATURE_dbus FEATURE_direct2d FEATURE_direct2d1_1 FEATURE_directwrite
  FEATURE_directwrite3 FEATURE_glib FEATURE_icu
  FEATURE_network FEATURE_opengl FEATURE_pkg_config FEATURE_sql FEATURE_vulkan FEATURE_xml
  FEATURE_zstd)
# What the window has no use for and what takes long to build: widgets, dialogs and models, pictures
# of other forms than those of its pages and icons, other calendars, and the names of file types,
# whose table would hold the time of the build.
toolkit_option(OFF
  FEATURE_colordialog FEATURE_columnview FEATURE_commandlinkbutton
  FEATURE_concatenatetablesproxymodel FEATURE_datawidgetmapper FEATURE_dial FEATURE_dockwidget
  FEATURE_errormessage FEATURE_fontcombobox FEATURE_fontdialog FEATURE_gif FEATURE_graphicseffect
  FEATURE_hijricalendar FEATURE_ico FEATURE_islamiccivilcalendar FEATURE_itemmodeltester
  FEATURE_jalalicalendar FEATURE_jpeg FEATURE_keysequenceedit FEATURE_lcdnumber FEATURE_mdiarea
  FEATURE_mimetype FEATURE_movie FEATURE_progressdialog FEATURE_scroller FEATURE_sharedmemory
  FEATURE_splashscreen FEATURE_syntaxhighlighter FEATURE_systemsemaphore FEATURE_systemtrayicon
  FEATURE_toolbox FEATURE_transposeproxymodel FEATURE_undocommand FEATURE_undogroup
  FEATURE_undostack FEATURE_undoview FEATURE_wizard)
# A header that it needs is left out of Debian's sources.
toolkit_option(OFF FEATURE_tabletevent)
toolkit_option(OFF
  FEATURE_system_doubleconversion FEATURE_system_freetype FEATURE_system_harfbuzz
  FEATURE_system_jpeg FEATURE_system_libb2 FEATURE_system_pcre2 FEATURE_system_png
  FEATURE_system_zlib)
toolkit_option(ON FEATURE_testlib)  # for the tests of the window
