# SPDX-License-Identifier: GPL-3.0-or-later

# What belongs to the package python3-vantrel.

set(modules lib/python3/dist-packages/vantrel)
set(python_doc ${share}/doc/python3-vantrel)

# Where Debian has modules for every release of its Python.
install(TARGETS vantrel_python LIBRARY DESTINATION ${modules} COMPONENT python)
install(FILES ${VANTREL_PYTHON_COPIES} DESTINATION ${modules} COMPONENT python)
install(FILES debian/copyright ${PROJECT_SOURCE_DIR}/docs/python.md
  ${PROJECT_SOURCE_DIR}/docs/python-plot.png
  DESTINATION ${python_doc} COMPONENT python)
vantrel_licences(${python_doc} python pybind11-dev rapidjson-dev)
file(READ ${CMAKE_CURRENT_BINARY_DIR}/changelog changelog)
file(CONFIGURE OUTPUT python-changelog CONTENT "python3-${changelog}")
vantrel_gzipped(${CMAKE_CURRENT_BINARY_DIR}/python-changelog changelog.gz ${python_doc} python)

# The core is compiled for one release of the interpreter.
math(EXPR next "${Python_VERSION_MINOR} + 1")
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-vantrel)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
  "python3 (>= 3.${Python_VERSION_MINOR}~), python3 (<< 3.${next}), python3-numpy")
set(CPACK_DEBIAN_PYTHON_PACKAGE_SUGGESTS "python3-matplotlib, python3-pandas, vantrel")
set(CPACK_DEBIAN_PYTHON_PACKAGE_CONTROL_EXTRA
  ${CMAKE_CURRENT_SOURCE_DIR}/python/postinst ${CMAKE_CURRENT_SOURCE_DIR}/python/prerm)
set(CPACK_DEBIAN_PYTHON_DESCRIPTION
"gait trials from C3D motion-capture files as numpy arrays
Vantrel opens C3D motion-capture files of walking people and turns them into
reports, strides, single-value measures and normalised curves.

The package holds the Python module vantrel: points, analog channels, events,
strides and measures of a trial as numpy arrays, and the tables of the
program's reports over any number of files, by the code of the program.")
