// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunTables.h"

#include <algorithm>
#include <iterator>

#include "c3d/FileState.h"
#include "cli/ReportTable.h"
#include "cli/TableOfRequest.h"
#include "console/OpenTrial.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "reports/ReportList.h"
#include "support/Text.h"

namespace cli {

using console::ComplainOf;
using console::kSomeFailed;
using console::Labels;
using console::MessageOf;
using console::OpenTrial;
using console::StandardOutput;
using console::Streams;

namespace {

// Writes the rows of `file`, which is open, and adds to `complaints` what is to be said of it, each
// thing as it arises: an error keeps none of them back.
void WriteOpened(const Request& request, const modVantrel::FileState& state,
                 const std::string& file, reports::TableOutput& table,
                 reports::Complaints& complaints) {
  const TrialReport& report = FindTrialReport(request.Report);
  if (report.Missing != nullptr) complaints = report.Missing(state, request.Options);
  std::ranges::move(
      report.Rows(state, modAllPurpose::WithReplacements(file), request.Options, table),
      std::back_inserter(complaints));
}

// Writes the rows of one file; false where something is complained of. That the output fails is not
// the file's fault, and is left to the end of the table.
bool WriteRows(const Request& request, const std::string& file, reports::TableOutput& table,
               const StandardOutput& output, const Streams& streams) {
  reports::Complaints complaints;
  const std::string failure = MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = OpenTrial(file, Labels::All, state);
    if (refusal.empty()) WriteOpened(request, state, file, table, complaints);
    return refusal;
  });
  if (!failure.empty() && !output.Failure()) {
    table.DropRow();
    complaints.push_back(failure);
  }
  for (const std::string& complaint : complaints) ComplainOf(file, complaint, streams);
  return complaints.empty() && !output.Failure();
}

}  // namespace

void RunTables(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  StandardOutput output(streams.Output, {});
  const auto table = MakeTable(request, output);
  table->Begin(reports::FindReport(request.Report)->Columns);
  for (const std::string& file : files) {
    if (!WriteRows(request, file, *table, output, streams)) status = kSomeFailed;
    if (output.Failure()) break;
  }
  const std::string lost = MessageOf([&] {
    if (output.Failure()) return modAllPurpose::RuntimeErrorLine(*output.Failure());
    table->End();
    output.Flush();
    return std::string();
  });
  if (lost.empty()) return;
  ComplainOf("standard output", lost, streams);
  status = kSomeFailed;
}

}  // namespace cli
