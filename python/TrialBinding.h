// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <pybind11/pybind11.h>

namespace python {

// Adds the class Trial of the module's core, on which the package's own Trial stands.
void BindTrial(pybind11::module_& module);

}  // namespace python
