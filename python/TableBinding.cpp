// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/TableBinding.h"

#include <cstddef>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <variant>
#include <vector>

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include "python/Arrays.h"
#include "python/FileNames.h"
#include "python/OutsideInterpreter.h"
#include "python/TableRun.h"
#include "reports/ReportList.h"
#include "support/Text.h"

namespace python {

namespace py = pybind11;

namespace {

// An array of Python's own objects, one for each of `values`.
template <typename Values, typename ObjectOf>
py::object Objects(const Values& values, ObjectOf objectOf) {
  const py::list list(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) list[i] = objectOf(values[i]);
  py::array array = py::module_::import("numpy").attr("empty")(values.size(), "O");
  array[py::ellipsis()] = list;
  return array;
}

py::object ArrayOfColumn(const TextColumn& texts) {
  std::vector<py::str> different(texts.Texts.begin(), texts.Texts.end());
  return Objects(texts.Rows, [&different](std::int32_t row) -> py::object {
    if (row == TextColumn::kMissing) return py::none();
    return different[static_cast<std::size_t>(row)];
  });
}

py::object ArrayOfColumn(const std::vector<AnyValue>& values) {
  return Objects(values, [](const AnyValue& value) -> py::object {
    if (std::holds_alternative<std::monostate>(value)) return py::none();
    return py::cast(value);
  });
}

template <typename Number>
py::object ArrayOfColumn(const std::vector<Number>& numbers) {
  return ArrayOf(numbers);
}

py::dict DictOf(const ColumnTable& table) {
  py::dict columns;
  for (std::size_t i = 0; i < table.Columns().size(); ++i) {
    columns[py::str(table.Names()[i].data(), table.Names()[i].size())] = std::visit(
        [](const auto& values) { return ArrayOfColumn(values); }, table.Columns()[i].Values());
  }
  return columns;
}

// Has an exception raised by a signal, as KeyboardInterrupt, end the work.
void EndWhereInterrupted(OutsideInterpreter& outside) {
  outside.Inside([] {
    if (PyErr_CheckSignals() != 0) throw py::error_already_set();
  });
}

TableResult MakeWithoutInterpreter(const TableRequest& request) {
  OutsideInterpreter outside;
  return MakeTable(request, [&outside] { EndWhereInterrupted(outside); });
}

std::vector<std::string> Paths(const std::vector<py::bytes>& files) {
  return {files.begin(), files.end()};
}

// A sentence may hold the name of a file, whose bytes may be no UTF-8.
using ComplaintRow = std::pair<py::object, std::string>;
std::vector<ComplaintRow> Rows(const std::vector<Complaint>& complaints) {
  std::vector<ComplaintRow> rows;
  rows.reserve(complaints.size());
  for (const Complaint& complaint : complaints) {
    rows.emplace_back(
        complaint.File ? py::object(FileName(*complaint.File)) : py::object(py::none()),
        modAllPurpose::WithReplacements(complaint.Message));
  }
  return rows;
}

std::pair<py::dict, std::vector<ComplaintRow>> Table(
    const std::string& report, const std::vector<py::bytes>& files, int jobs,
    std::vector<std::string> labels, bool allLabels, std::optional<std::string> group,
    std::optional<std::string> parameter, const py::bytes& normal, bool stops) {
  TableRequest request{reports::FindReport(report),
                       Paths(files),
                       {std::move(labels), allLabels, std::move(group), std::move(parameter)},
                       normal,
                       jobs,
                       stops};
  const TableResult result = MakeWithoutInterpreter(request);
  return {DictOf(*result.Table), Rows(result.Complaints)};
}

// The reports that have a table: name, whether it needs labels, whether normal values.
std::vector<std::tuple<std::string_view, bool, bool>> TableReports() {
  std::vector<std::tuple<std::string_view, bool, bool>> found;
  for (const reports::ReportInfo& info : reports::kReports) {
    if (!info.Columns.empty()) found.emplace_back(info.Name, info.NeedsLabel, info.NeedsNormals);
  }
  return found;
}

}  // namespace

void BindTable(py::module_& module) {
  module.def("table_reports", TableReports);
  module.def("table", Table, py::kw_only(), py::arg("report"), py::arg("files"), py::arg("jobs"),
             py::arg("labels"), py::arg("all_labels"), py::arg("group"), py::arg("parameter"),
             py::arg("normal"), py::arg("stops"));
}

}  // namespace python
