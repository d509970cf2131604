// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pybind11/pybind11.h>

namespace python {

// Adds the function that makes tables, and the reports that have one.
void BindTable(pybind11::module_& module);

}  // namespace python
