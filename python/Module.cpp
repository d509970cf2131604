// SPDX-License-Identifier: GPL-3.0-or-later

// The core of the package vantrel: plain calls into the layers below, which the package's own
// modules in Python turn into what its users see.

#include <string>
#include <tuple>
#include <vector>

#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "gait/Checkup.h"
#include "python/Exceptions.h"
#include "python/OutsideInterpreter.h"
#include "python/TableBinding.h"
#include "python/TrialBinding.h"
#include "reports/CheckReport.h"
#include "support/Text.h"

namespace python {

namespace py = pybind11;

namespace {

// The form in which labels and names are compared. Bytes, since a text of Python may be no UTF-8.
py::bytes SearchKey(const std::string& name) { return modAllPurpose::SearchKey(name); }

// The findings in a file: severity, code, place and message.
using FindingRow = std::tuple<std::string_view, std::string, std::string, std::string>;
std::vector<FindingRow> Findings(const py::bytes& file) {
  const std::string path = file;
  const OutsideInterpreter outside;
  std::vector<FindingRow> rows;
  for (auto& [level, code, place, message] : reports::CheckFile(path)) {
    rows.emplace_back(modVantrel::SeverityName(level), code, place, message);
  }
  return rows;
}

}  // namespace

PYBIND11_MODULE(_core, module) {
  RegisterExceptions();
  BindTrial(module);
  BindTable(module);
  module.def("search_key", SearchKey, py::arg("name"));
  module.def("findings", Findings, py::arg("file"));
  module.attr("version") = VANTREL_VERSION;
}

}  // namespace python
