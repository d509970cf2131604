// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunPooled.h"

#include <memory>
#include <utility>
#include <variant>

#include "c3d/FileState.h"
#include "cli/TableOfRequest.h"
#include "console/Complaint.h"
#include "console/OpenTrial.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "reports/NormsReport.h"
#include "reports/PooledReport.h"
#include "reports/ReportList.h"
#include "reports/ScoresReport.h"
#include "reports/VariabilityReport.h"
#include "reports/VisitReport.h"
#include "visit/NormalFile.h"

namespace cli {

using console::Complain;
using console::ComplainOf;
using console::kSomeFailed;
using console::Labels;
using console::MessageOf;
using console::OpenTrial;
using console::StandardOutput;
using console::Streams;

using reports::Complaints;
using reports::PooledReport;
using reports::TableOptions;

namespace {

using Made = std::variant<std::unique_ptr<PooledReport>, std::string>;

Made MakeScores(const Request& request) {
  auto normals = visit::ReadNormalFile(request.NormalFile);
  if (auto* failure = std::get_if<std::string>(&normals)) return std::move(*failure);
  return reports::MakeScoresReport(request.Options, std::get<visit::Normals>(std::move(normals)));
}

template <std::unique_ptr<PooledReport> (*Make)(const TableOptions&)>
Made MakeByOptions(const Request& request) {
  return Make(request.Options);
}

// The report that the request names, or why there is none.
Made MakeReport(const Request& request) {
  constexpr std::pair<std::string_view, Made (*)(const Request&)> kMakers[] = {
      {"visit", MakeByOptions<reports::MakeVisitReport>},
      {"variability", MakeByOptions<reports::MakeVariabilityReport>},
      {"norms", MakeByOptions<reports::MakeNormsReport>},
      {"scores", MakeScores},
  };
  for (const auto& [name, make] : kMakers) {
    if (name == request.Report) return make(request);
  }
  return std::string("there is no such report over several trials");
}

// Takes in one file; answers with what is to be said of it.
Complaints AddFile(const std::string& file, PooledReport& report) {
  Complaints complaints;
  const std::string failure = MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = OpenTrial(file, Labels::All, state);
    if (!refusal.empty()) return refusal;
    complaints = report.Missing(state);
    report.Add(state);
    return std::string();
  });
  if (!failure.empty()) complaints.push_back(failure);
  return complaints;
}

Complaints Write(const Request& request, const PooledReport& report, StandardOutput& output) {
  if (request.Format == OutputFormat::Text) return report.ShowText(output);
  const auto table = MakeTable(request, output);
  table->Begin(reports::FindReport(request.Report)->Columns);
  Complaints complaints = report.WriteRows(*table);
  table->End();
  return complaints;
}

}  // namespace

void RunPooled(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  const Made made = MakeReport(request);
  if (const auto* failure = std::get_if<std::string>(&made)) {
    Complain(streams, *failure);
    status = kSomeFailed;
    return;
  }
  PooledReport& report = *std::get<std::unique_ptr<PooledReport>>(made);
  const auto complain = [&](const std::string& about, const Complaints& complaints) {
    for (const std::string& complaint : complaints) ComplainOf(about, complaint, streams);
    if (!complaints.empty()) status = kSomeFailed;
  };
  for (const std::string& file : files) complain(file, AddFile(file, report));
  StandardOutput output(streams.Output, {});
  Complaints complaints;
  const std::string lost = MessageOf([&] {
    complaints = Write(request, report, output);
    output.Flush();
    return std::string();
  });
  complain(request.Report, complaints);
  if (!lost.empty()) complain("standard output", {lost});
}

}  // namespace cli
