// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/ExerciseTrial.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "c3d/FrameData.h"
#include "c3d/OpenC3dFile.h"
#include "gait/Checkup.h"
#include "gait/EventExtraction.h"
#include "gait/GcdCalcs.h"
#include "gait/GcdCommand.h"
#include "gait/GcdText.h"
#include "pages/MakePages.h"
#include "pages/PageJson.h"
#include "reports/CheckReport.h"
#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NavigationTree.h"
#include "reports/NormalizedReport.h"
#include "reports/ParameterReport.h"
#include "reports/StrikeOffReport.h"

namespace fuzz {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;

namespace {

// Takes a report and forgets it. What a damaged file makes a report print can be long without being
// wrong, so the report is left after a while.
class Discarded : public ReportOutput {
 public:
  struct LongEnough {};

  void BeginReport() override {}
  void AppendOutput(std::string_view text, bool /*paneOnly*/, bool /*continueLine*/) override {
    constexpr std::size_t kMostBytes = std::size_t{1024} * 1024;
    bytes_ += text.size() + 1;
    if (bytes_ > kMostBytes) throw LongEnough();
  }

 private:
  std::size_t bytes_ = 0;
};

// Runs one report; the errors that reports end in are expected.
void Run(const std::function<void(ReportOutput&)>& report) {
  Discarded output;
  try {
    report(output);
  } catch (const modAllPurpose::RuntimeError&) {
  } catch (const Discarded::LongEnough&) {
  }
}

// The first labels, the last one, and one that is not there.
std::vector<std::string> SomeLabels(const modAllPurpose::OneBasedTable<std::string>& labels) {
  constexpr std::int32_t kFirstOnes = 3;
  std::vector<std::string> some = {"no such label"};
  for (std::int32_t i = 1; i <= std::min(labels.Count(), kFirstOnes); ++i)
    some.push_back(labels[i]);
  if (labels.Count() > kFirstOnes) some.push_back(labels[labels.Count()]);
  return some;
}

void RunPlainReports(const FileState& state) {
  using namespace reports;
  Run([&](ReportOutput& output) { ShowHeaderInfo(state, output); });
  Run([&](ReportOutput& output) { ShowParameterHeader(state, output); });
  Run([&](ReportOutput& output) { ShowAllGroups(state, output); });
  Run([&](ReportOutput& output) { ShowAllGroupsAndAllParams(state, output); });
  Run([&](ReportOutput& output) { (void)ShowMatchingGroupAndAllParams(state, "POINT", output); });
  Run([&](ReportOutput& output) {
    (void)ShowMatchingGroupAndMatchingParam(state, "POINT", "LABELS", output);
  });
  Run([&](ReportOutput& output) { ShowPointLabels(state, output); });
  Run([&](ReportOutput& output) { ShowTree(state, output); });
  Run([&](ReportOutput& output) { reports::ShowStrikeOffEvents(state, output); });
  Run([&](ReportOutput& output) { reports::ShowSingleValueStrikeOffMeasures(state, output); });
}

void RunLabelReports(const FileState& state) {
  using namespace reports;
  for (const std::string& label : SomeLabels(state.PointLabels)) {
    Run([&](ReportOutput& output) { (void)ShowPointData(state, label, output); });
    Run([&](ReportOutput& output) { (void)ShowPointDataWithEvents(state, label, output); });
    Run([&](ReportOutput& output) { (void)reports::ShowNormalized(state, label, output); });
  }
  for (const std::string& label : SomeLabels(state.AnalogLabels)) {
    Run([&](ReportOutput& output) { (void)ShowAnalogData(state, label, output); });
    Run([&](ReportOutput& output) { (void)ShowAnalogDataWithEvents(state, label, output); });
  }
}

void RunGcdTexts(const FileState& state) {
  modVantrel::clsGcdCalcs calcs(state);
  const auto strides = std::min(state.GaitEvents.ValidStrideCount, 2);
  for (std::int32_t i = 1; i <= strides; ++i) {
    Run([&](ReportOutput& output) {
      const auto subject = modVantrel::FindSubject(state, {});
      output.Line(GcdText(calcs, i, subject));
    });
  }
}

void RunPages(const FileState& state) {
  pages::TrialReading reading{{}, SomeLabels(state.PointLabels)};
  pages::PageChoice choice;
  for (const pages::PageInfo& page : pages::kPages) reading.Kinds.push_back(page.Kind);
  choice.Kinds = reading.Kinds;
  Run([&](ReportOutput& output) {
    const std::vector trials = {ReadTrialValues(state, reading)};
    output.Line(JsonOf(MakePages(trials, choice)));
  });
}

}  // namespace

void ExerciseOpenFile(const FileState& state) {
  RunPlainReports(state);
  RunLabelReports(state);
  RunGcdTexts(state);
  RunPages(state);
}

void ExerciseCheckup(const std::string& path) {
  // A RuntimeError is no answer of the checkup, so none is caught here.
  const auto findings = modVantrel::CheckTrial(path);
  Run([&](ReportOutput& output) { reports::ShowFindings(findings, output); });
}

void ExerciseTrial(const std::string& path) {
  FileState state;
  try {
    const auto result = modVantrel::OpenC3dFile(state, path, modVantrel::FindGaitEvents);
    if (result != modVantrel::OpenResult::Success) return;
  } catch (const modAllPurpose::RuntimeError&) {
    return;
  }
  ExerciseOpenFile(state);
}

}  // namespace fuzz
