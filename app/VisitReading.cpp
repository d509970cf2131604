// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/VisitReading.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <utility>
#include <variant>

#include "c3d/FileState.h"
#include "gait/OpenTrial.h"
#include "pages/PageKinds.h"
#include "reports/CsvTable.h"
#include "reports/JsonTable.h"
#include "reports/PooledReportList.h"
#include "reports/ReportList.h"
#include "reports/TrialTableList.h"
#include "support/MessageOf.h"
#include "support/Text.h"

namespace app {

using modVantrel::FileState;
using reports::Complaints;
using reports::TableOptions;
using reports::TableOutput;

namespace {

// What a table of the window can be made of: rows of each trial, or of all without normal values.
constexpr bool CanBeTabulated(std::string_view report) {
  const auto* info = std::ranges::find(reports::kReports, report, &reports::ReportInfo::Name);
  return info != reports::kReports.end() && !info->Columns.empty() && !info->ReadsAnyFile &&
         !info->NeedsNormals;
}
static_assert(std::ranges::all_of(kVisitTables, CanBeTabulated));

// Opens the trial with all its labels and works on it; the sentence that says what went wrong.
std::string Opened(const std::string& path, const std::function<void(FileState&)>& work) {
  return modAllPurpose::MessageOf([&] {
    FileState state;
    std::string refusal = OpenTrial(path, modVantrel::Labels::All, state);
    if (refusal.empty()) work(state);
    return refusal;
  });
}

pages::TrialReading EverythingAnd(const std::string& label) {
  pages::TrialReading reading;
  for (const pages::PageInfo& page : pages::kPages) reading.Kinds.push_back(page.Kind);
  if (!label.empty()) reading.LabelsOverTime.push_back(label);
  return reading;
}

// Drops strides as if the trial had none of them; the others keep their numbers.
void LeaveOut(FileState& state, const std::set<StrideOfTrial>& strides) {
  auto& events = state.GaitEvents;
  for (std::int32_t i = events.ValidStrides.Count(); i >= 1; --i) {
    const modVantrel::StrideRecord& stride = events.ValidStrides[i];
    if (strides.contains({stride.Side, stride.Number})) events.ValidStrides.Remove(i);
  }
  events.ValidStrideCount = events.ValidStrides.Count();
}

void ComplainOf(const std::string& path, const std::string& failure, MadeTable& made) {
  if (!failure.empty()) made.Complaints.push_back(path + ": " + failure);
}

// Rows of each trial, one trial after the other.
void WriteEach(reports::RowsFunction rows, const TableOptions& options,
               const std::vector<TrialToRead>& trials, TableOutput& table, MadeTable& made) {
  for (const TrialToRead& trial : trials) {
    const std::string failure = Opened(trial.Path, [&](FileState& state) {
      LeaveOut(state, trial.LeftOut);
      const std::string file = modAllPurpose::WithReplacements(trial.Path);
      for (const auto& complaint : rows(state, file, options, table)) {
        ComplainOf(trial.Path, complaint, made);
      }
    });
    if (!failure.empty()) table.DropRow();
    ComplainOf(trial.Path, failure, made);
  }
}

void WritePooled(std::unique_ptr<reports::PooledReport> report,
                 const std::vector<TrialToRead>& trials, TableOutput& table, MadeTable& made) {
  for (const TrialToRead& trial : trials) {
    ComplainOf(trial.Path,
               Opened(trial.Path,
                      [&](FileState& state) {
                        LeaveOut(state, trial.LeftOut);
                        report->Add(state);
                      }),
               made);
  }
  std::ranges::move(report->WriteRows(table), std::back_inserter(made.Complaints));
}

}  // namespace

ReadTrial ReadTrialForPages(const std::string& path, const std::string& label) {
  ReadTrial read;
  read.Failure = Opened(path, [&](FileState& state) {
    pages::TrialValues values = pages::ReadTrialValues(state, EverythingAnd(label));
    for (const std::string& name : state.PointLabels) {
      if (!name.empty()) read.Labels.push_back(name);
    }
    values.File = path;
    read.Values = std::move(values);
  });
  return read;
}

ReadLabel ReadLabelOverTime(const std::string& path, const std::string& label) {
  ReadLabel read;
  read.Failure = Opened(path, [&](FileState& state) {
    read.OverTime = pages::ReadTrialValues(state, {{}, {label}}).OverTime;
  });
  return read;
}

MadeTable TableOfVisit(std::string_view report, TableForm form,
                       const std::vector<TrialToRead>& trials) {
  MadeTable made;
  modAllPurpose::TextReport output;
  std::unique_ptr<TableOutput> table;
  if (form == TableForm::Json) {
    table = std::make_unique<reports::JsonTable>(output);
  } else {
    table = std::make_unique<reports::CsvTable>(output);
  }
  TableOptions options;
  const reports::ReportInfo& info = *reports::FindReport(report);
  options.AllLabels = info.NeedsLabel;
  table->Begin(info.Columns);
  if (info.Pools) {
    auto pooled = reports::MakePooledReport(report, options, {});
    WritePooled(std::get<std::unique_ptr<reports::PooledReport>>(std::move(pooled)), trials, *table,
                made);
  } else {
    WriteEach(reports::FindTrialTable(report).Rows, options, trials, *table, made);
  }
  table->End();
  made.Text = output.Text();
  return made;
}

}  // namespace app
