// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <pybind11/pybind11.h>

namespace python {

// The name of a file as Python has it; bytes that are no UTF-8 are kept as its surrogates.
inline pybind11::str FileName(const std::string& path) {
  return pybind11::reinterpret_steal<pybind11::str>(
      PyUnicode_DecodeFSDefaultAndSize(path.data(), static_cast<Py_ssize_t>(path.size())));
}

}  // namespace python
