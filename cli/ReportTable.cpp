#include "cli/ReportTable.h"

#include <algorithm>
#include <array>

#include "app/reports/HeaderReport.h"
#include "app/reports/ListingReport.h"
#include "app/reports/NavigationTree.h"
#include "app/reports/ParameterReport.h"
#include "gait/GcdCommand.h"
#include "gait/MeasuresReport.h"
#include "gait/NormalizedReport.h"
#include "gait/StrikeOffReport.h"

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;
using modVantrel::OverwriteAnswer;

namespace {

// A report that takes the open file alone and never refuses.
template <void (*Show)(const FileState&, ReportOutput&)>
std::string Plain(const FileState& state, const Request& /*request*/, ReportOutput& output) {
  Show(state, output);
  return {};
}

// A report that may refuse its input.
template <ReportResult (*Show)(const FileState&, const Request&, ReportOutput&)>
std::string Refusing(const FileState& state, const Request& request, ReportOutput& output) {
  return std::string(Show(state, request, output).Text());
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
  return modVantrel::ShowNormalized(state, request.Label, output);
}

// Answers for the user as the command line says.
class OverwriteOption : public modVantrel::OverwriteQuestion {
 public:
  explicit OverwriteOption(bool overwrite) : overwrite_(overwrite) {}

  OverwriteAnswer Ask(const std::string& gcdFileName) override {
    if (overwrite_) return OverwriteAnswer::YesToAll;
    refused_ = gcdFileName;
    return OverwriteAnswer::Cancel;
  }

  // The existing file that was not overwritten; empty where there was none.
  const std::string& Refused() const { return refused_; }

 private:
  bool overwrite_;
  std::string refused_;
};

std::string Gcd(const FileState& state, const Request& request, ReportOutput& output) {
  OverwriteOption overwrite(request.Overwrite);
  const ReportResult result = modVantrel::WriteGcdFiles(state, request.Gcd, overwrite, output);
  if (overwrite.Refused().empty()) return std::string(result.Text());
  return overwrite.Refused() + " exists already (--overwrite replaces it)";
}

constexpr std::array kReports = {
    ReportEntry{"header", Plain<reports::ShowHeaderInfo>, false},
    ReportEntry{"parameter-header", Plain<reports::ShowParameterHeader>, false},
    ReportEntry{"groups", Plain<reports::ShowAllGroups>, false},
    ReportEntry{"parameters", Refusing<Parameters>, false},
    ReportEntry{"labels", Plain<reports::ShowPointLabels>, false},
    ReportEntry{"point", Refusing<Point>, true},
    ReportEntry{"analog", Refusing<Analog>, true},
    ReportEntry{"events", Plain<modVantrel::ShowStrikeOffEvents>, false},
    ReportEntry{"measures", Plain<modVantrel::ShowSingleValueStrikeOffMeasures>, false},
    ReportEntry{"normalized", Refusing<Normalized>, true},
    ReportEntry{"gcd", Gcd, false},
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
