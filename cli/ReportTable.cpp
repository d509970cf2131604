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
#include "reports/StrikeOffReport.h"

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;

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

ReportResult Parameters(const FileState& state, const Request& request, ReportOutput& output) {
  if (request.HasParam) {
    return reports::ShowMatchingGroupAndMatchingParam(state, request.Group, request.Param, output);
  }
  if (request.HasGroup) {
    return reports::ShowMatchingGroupAndAllParams(state, request.Group, output);
  }
  reports::ShowAllGroupsAndAllParams(state, output);
  return ReportResult::Written();
}

ReportResult Point(const FileState& state, const Request& request, ReportOutput& output) {
  return request.Events ? reports::ShowPointDataWithEvents(state, request.Label, output)
                        : reports::ShowPointData(state, request.Label, output);
}

ReportResult Analog(const FileState& state, const Request& request, ReportOutput& output) {
  return request.Events ? reports::ShowAnalogDataWithEvents(state, request.Label, output)
                        : reports::ShowAnalogData(state, request.Label, output);
}

ReportResult Normalized(const FileState& state, const Request& request, ReportOutput& output) {
  return reports::ShowNormalized(state, request.Label, output);
}

std::string Gcd(const FileState& state, Request& request, ReportOutput& output) {
  return WriteGcdReport(state, request.Gcd, output);
}

constexpr std::array kReports = {
    ReportEntry{"header", Plain<reports::ShowHeaderInfo>, false},
    ReportEntry{"parameter-header", Plain<reports::ShowParameterHeader>, false},
    ReportEntry{"groups", Plain<reports::ShowAllGroups>, false},
    ReportEntry{"parameters", Refusing<Parameters>, false},
    ReportEntry{"labels", Plain<reports::ShowPointLabels>, false},
    ReportEntry{"point", Refusing<Point>, true},
    ReportEntry{"analog", Refusing<Analog>, true},
    ReportEntry{"events", Plain<reports::ShowStrikeOffEvents>, false},
    ReportEntry{"measures", Plain<reports::ShowSingleValueStrikeOffMeasures>, false},
    ReportEntry{"normalized", Refusing<Normalized>, true},
    ReportEntry{"gcd", Gcd, false, Unwritten::LosesLines},
    ReportEntry{"tree", Plain<reports::ShowTree>, false},
};

}  // namespace

const ReportEntry* FindReport(std::string_view name) {
  const auto* entry = std::ranges::find(kReports, name, &ReportEntry::Name);
  return entry == kReports.end() ? nullptr : entry;
}

std::string ReportNames(std::string_view separator) {
  std::string names;
  for (const ReportEntry& entry : kReports) {
    if (!names.empty()) names += separator;
    names += entry.Name;
  }
  return names;
}

}  // namespace cli
