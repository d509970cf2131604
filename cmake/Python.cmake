# SPDX-License-Identifier: GPL-3.0-or-later

# The package of Python is built for the system's interpreter, whatever stands first in PATH.
set(Python_EXECUTABLE /usr/bin/python3 CACHE FILEPATH "The interpreter that the package is for")
set(PYBIND11_FINDPYTHON ON)
find_package(pybind11 REQUIRED)
