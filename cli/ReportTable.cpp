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

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;

namespace {

// A report that takes the open file alone and never refuses.
template <void (*Show)(const FileState&, ReportOutput&)>
TextOutcome Plain(const FileState& state, const TextRequest& /*request*/, ReportOutput& output) {
  Show(state, output);
  return {};
}

// A report that may refuse its input.
template <ReportResult (*Show)(const FileState&, const Request&, ReportOutput&)>
TextOutcome Refusing(const FileState& state, const TextRequest& request, ReportOutput& output) {
  return {.Refusal = Show(state, request.Asked, output).Text()};
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

TextOutcome Gcd(const FileState& state, const TextRequest& request, ReportOutput& output) {
  return WriteGcdReport(state, request.Asked.Gcd, request.Turn, output);
}

struct TrialText {
  std::string_view Name;
  TextFunction Write;
};

constexpr std::array kTrialTexts = {
    TrialText{"header", Plain<reports::ShowHeaderInfo>},
    TrialText{"parameter-header", Plain<reports::ShowParameterHeader>},
    TrialText{"groups", Plain<reports::ShowAllGroups>},
    TrialText{"parameters", Refusing<Parameters>},
    TrialText{"labels", Plain<reports::ShowPointLabels>},
    TrialText{"point", Refusing<Point>},
    TrialText{"analog", Refusing<Analog>},
    TrialText{"events", Plain<reports::ShowStrikeOffEvents>},
    TrialText{"strides", Plain<reports::ShowStrides>},
    TrialText{"measures", Plain<reports::ShowSingleValueStrikeOffMeasures>},
    TrialText{"normalized", Refusing<Normalized>},
    TrialText{"summary", Plain<reports::ShowSummary>},
    TrialText{"gcd", Gcd},
    TrialText{"tree", Plain<reports::ShowTree>},
};

// Each report of the list that is made of one trial has its function above.
constexpr bool IsMadeSomewhere(const reports::ReportInfo& info) {
  return info.Pools || info.ReadsAnyFile ||
         std::ranges::find(kTrialTexts, info.Name, &TrialText::Name) != kTrialTexts.end();
}
static_assert(std::ranges::all_of(reports::kReports, IsMadeSomewhere));

}  // namespace

TextFunction FindText(std::string_view name) {
  return std::ranges::find(kTrialTexts, name, &TrialText::Name)->Write;
}

}  // namespace cli
