// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/Checkup.h"

#include <algorithm>
#include <array>
#include <utility>

#include "gait/CheckFindings.h"
#include "gait/CheckedTrial.h"
#include "gait/Checks.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurpose::IgnoringErrors;

namespace {

using Check = void (*)(const CheckedTrial&, Findings&);

constexpr std::array<Check, 12> kChecks = {CheckParameterChain, CheckDataLength, CheckFrameCount,
                                           CheckFirstFrame,     CheckRate,       CheckPointCount,
                                           CheckAnalogLayout,   CheckLabels,     CheckFrames,
                                           CheckUnits,          CheckEvents,     CheckForcePlates};

}  // namespace

std::string_view SeverityName(Severity severity) {
  switch (severity) {
    case Severity::Error:
      return "error";
    case Severity::Warning:
      return "warning";
    case Severity::Note:
      return "note";
  }
  return "";
}

bool HasError(const std::vector<Finding>& findings) {
  return std::ranges::any_of(
      findings, [](const Finding& finding) { return finding.Level == Severity::Error; });
}

std::vector<Finding> CheckTrial(const std::string& file, const SummaryStrides& summary) {
  CheckedTrial trial;
  Findings findings;
  const BinaryFile::Look look(trial.State.C3dFileNumber);
  IgnoringErrors([&] { ReadTrial(trial, file); });
  IgnoringErrors([&] { CheckOpen(trial, findings); });
  if (trial.HasParams()) {
    // What one check cannot read keeps none of the others from its findings.
    for (const Check check : kChecks) IgnoringErrors([&] { check(trial, findings); });
    IgnoringErrors([&] { CheckAnalysis(trial, summary, findings); });
    IgnoringErrors([&] { CheckSubject(trial, findings); });
  }
  return findings.Sorted();
}

}  // namespace modVantrel
