// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/ReportTable.h"

#include <algorithm>
#include <array>

#include "cli/GcdReport.h"
#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NavigationTree.h"
#include "reports/NormalizedReport.h"
#include "reports/ParameterReport.h"
#include "reports/ReportList.h"
#include "reports/StrideReport.h"
#include "reports/StrikeOffReport.h"
#include "reports/SummaryReport.h"
#include "reports/TrialTables.h"

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;
using reports::Complaints;

namespace {

// A report that takes the open file alone and never refuses.
template <void (*Show)(const FileState&, ReportOutput&)>
std::string Plain(const FileState& state, Request& /*request*/, ReportOutput& output) {
  Show(state, output);
  return {};
}

// A report that may refuse its input.
template <ReportResult (*Show)(const FileState&, const Request&, ReportOutput&)>
std::string Refusing(const FileState& state, Request& request, ReportOutput& output) {
  return Show(state, request, output).Text();
}

// The label of a text report, which takes one.
const std::string& LabelOf(const Request& request) { return request.Options.Labels.front(); }

ReportResult Parameters(const FileState& state, const Request& request, ReportOutput& output) {
  if (request.Options.Group && request.Options.Param) {
    return reports::ShowMatchingGroupAndMatchingParam(state, *request.Options.Group,
                                                      *request.Options.Param, output);
  }
  if (request.Options.Group)
    return reports::ShowMatchingGroupAndAllParams(state, *request.Options.Group, output);
  reports::ShowAllGroupsAndAllParams(state, output);
  return ReportResult::Written();
}

ReportResult Point(const FileState& state, const Request& request, ReportOutput& output) {
  return request.Events ? reports::ShowPointDataWithEvents(state, LabelOf(request), output)
                        : reports::ShowPointData(state, LabelOf(request), output);
}

ReportResult Analog(const FileState& state, const Request& request, ReportOutput& output) {
  return request.Events ? reports::ShowAnalogDataWithEvents(state, LabelOf(request), output)
                        : reports::ShowAnalogData(state, LabelOf(request), output);
}

ReportResult Normalized(const FileState& state, const Request& request, ReportOutput& output) {
  return reports::ShowNormalized(state, LabelOf(request), output);
}

std::string Gcd(const FileState& state, Request& request, ReportOutput& output) {
  return WriteGcdReport(state, request.Gcd, output);
}

Complaints Summary(const FileState& state, std::string_view file,
                   const reports::TableOptions& /*options*/, reports::TableOutput& table) {
  reports::SummaryRows(state, file, table);
  return {};
}

constexpr std::array kTrialReports = {
    TrialReport{"header", Plain<reports::ShowHeaderInfo>, reports::HeaderRows},
    TrialReport{"parameter-header", Plain<reports::ShowParameterHeader>},
    TrialReport{"groups", Plain<reports::ShowAllGroups>},
    TrialReport{"parameters", Refusing<Parameters>, reports::ParameterRows},
    TrialReport{"labels", Plain<reports::ShowPointLabels>, reports::LabelRows},
    TrialReport{"point", Refusing<Point>, reports::PointRows, reports::MissingPoints},
    TrialReport{"analog", Refusing<Analog>, reports::AnalogRows, reports::MissingChannels},
    TrialReport{"events", Plain<reports::ShowStrikeOffEvents>, reports::EventRows},
    TrialReport{"strides", Plain<reports::ShowStrides>, reports::StrideRows},
    TrialReport{"measures", Plain<reports::ShowSingleValueStrikeOffMeasures>, reports::MeasureRows},
    TrialReport{"normalized", Refusing<Normalized>, reports::NormalizedRows,
                reports::MissingPoints},
    TrialReport{"summary", Plain<reports::ShowSummary>, Summary},
    TrialReport{"gcd", Gcd},
    TrialReport{"tree", Plain<reports::ShowTree>},
};

// Each report of the list that is made of one trial has its functions above.
constexpr bool IsMadeSomewhere(const reports::ReportInfo& info) {
  return info.Pools || info.ReadsAnyFile ||
         std::ranges::find(kTrialReports, info.Name, &TrialReport::Name) != kTrialReports.end();
}
static_assert(std::ranges::all_of(reports::kReports, IsMadeSomewhere));

}  // namespace

const TrialReport& FindTrialReport(std::string_view name) {
  return *std::ranges::find(kTrialReports, name, &TrialReport::Name);
}

}  // namespace cli
