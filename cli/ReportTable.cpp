#include "cli/ReportTable.h"

#include <algorithm>
#include <array>

#include "app/reports/HeaderReport.h"
#include "app/reports/ListingReport.h"
#include "app/reports/NavigationTree.h"
#include "app/reports/ParameterReport.h"

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;

namespace {

// A report that takes the open file alone and never refuses.
template <void (*Show)(const FileState&, ReportOutput&)>
ReportResult Plain(const FileState& state, const Request& /*request*/, ReportOutput& output) {
  Show(state, output);
  return ReportResult::Written();
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

constexpr std::array kReports = {
    ReportEntry{"header", Plain<reports::ShowHeaderInfo>, false},
    ReportEntry{"parameter-header", Plain<reports::ShowParameterHeader>, false},
    ReportEntry{"groups", Plain<reports::ShowAllGroups>, false},
    ReportEntry{"parameters", Parameters, false},
    ReportEntry{"labels", Plain<reports::ShowPointLabels>, false},
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
