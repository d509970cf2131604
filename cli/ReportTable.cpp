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
  if (request.Group && request.Param) {
    return reports::ShowMatchingGroupAndMatchingParam(state, *request.Group, *request.Param,
                                                      output);
  }
  if (request.Group) return reports::ShowMatchingGroupAndAllParams(state, *request.Group, output);
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

struct ReportEntry {
  std::string_view Name;
  ReportFunction Run;
};

constexpr std::array kFunctions = {
    ReportEntry{"header", Plain<reports::ShowHeaderInfo>},
    ReportEntry{"parameter-header", Plain<reports::ShowParameterHeader>},
    ReportEntry{"groups", Plain<reports::ShowAllGroups>},
    ReportEntry{"parameters", Refusing<Parameters>},
    ReportEntry{"labels", Plain<reports::ShowPointLabels>},
    ReportEntry{"point", Refusing<Point>},
    ReportEntry{"analog", Refusing<Analog>},
    ReportEntry{"events", Plain<reports::ShowStrikeOffEvents>},
    ReportEntry{"measures", Plain<reports::ShowSingleValueStrikeOffMeasures>},
    ReportEntry{"normalized", Refusing<Normalized>},
    ReportEntry{"gcd", Gcd},
    ReportEntry{"tree", Plain<reports::ShowTree>},
};

static_assert(std::ranges::equal(kFunctions, reports::kReports, {}, &ReportEntry::Name,
                                 &reports::ReportInfo::Name),
              "every report of the list has its function here, in the same order");

}  // namespace

ReportFunction FunctionOf(std::string_view report) {
  return std::ranges::find(kFunctions, report, &ReportEntry::Name)->Run;
}

}  // namespace cli
