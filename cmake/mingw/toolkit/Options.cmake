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
# A header that it needs is left out of Debian's sources.
toolkit_option(OFF FEATURE_tabletevent)
toolkit_option(OFF
  FEATURE_system_doubleconversion FEATURE_system_freetype FEATURE_system_harfbuzz
  FEATURE_system_jpeg FEATURE_system_libb2 FEATURE_system_pcre2 FEATURE_system_png
  FEATURE_system_zlib)
toolkit_option(ON FEATURE_testlib)  # for the tests of the window
