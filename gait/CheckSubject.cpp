// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <chrono>
#include <optional>
#include <vector>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/Checks.h"
#include "gait/SubjectRecord.h"

namespace modVantrel {

namespace {

// The first one that is a date; none where there is none.
const GivenDate* FirstDate(const std::vector<GivenDate>& dates) {
  const auto found =
      std::ranges::find_if(dates, [](const GivenDate& given) { return given.Date.has_value(); });
  return found == dates.end() ? nullptr : &*found;
}

void CheckReadable(const std::vector<GivenDate>& dates, Findings& findings) {
  for (const GivenDate& given : dates) {
    if (given.Date) continue;
    findings.Add("subject-date", given.Place,
                 fmt::format("{} is \"{}\", which is no date in the form 2026-11-20: it counts as "
                             "missing, and where no other is found the age in GCD files is 0.00.",
                             given.Place, Shown(given.Text)));
  }
}

void CheckOrderOfDates(const SubjectSources& subject, Findings& findings) {
  const GivenDate* birth = FirstDate(subject.BirthDates);
  const GivenDate* visit = FirstDate(subject.VisitDates);
  if (birth == nullptr || visit == nullptr || *birth->Date <= *visit->Date) return;
  findings.Add("subject-date", birth->Place,
               fmt::format("The subject was born on {} ({}), behind the visit on {} ({}): the age "
                           "in GCD files is below zero.",
                           birth->Text, birth->Place, visit->Text, visit->Place));
}

void CheckMissing(const SubjectSources& subject, Findings& findings) {
  std::vector<std::string> missing;
  std::vector<std::string> effects;
  if (subject.Gender.empty()) {
    missing.emplace_back("gender");
    effects.emplace_back("NotSpecified for the gender");
  }
  if (subject.BirthDates.empty()) missing.emplace_back("date of birth");
  if (subject.VisitDates.empty()) missing.emplace_back("date of the visit");
  if (missing.empty()) return;
  if (subject.BirthDates.empty() || subject.VisitDates.empty()) {
    effects.emplace_back("0.00 for the age");
  }
  findings.Add("subject-missing", "SUBJECT",
               fmt::format("Neither the trial nor subject.ini in its folder gives the {}: GCD "
                           "files say {}.",
                           Listed(missing), Listed(effects)));
}

}  // namespace

void CheckSubject(const CheckedTrial& trial, Findings& findings) {
  const SubjectSources subject = FindSubjectSources(trial.State.OpenC3dFileSpec, *trial.Params);
  CheckMissing(subject, findings);
  CheckReadable(subject.BirthDates, findings);
  CheckReadable(subject.VisitDates, findings);
  CheckOrderOfDates(subject, findings);
}

}  // namespace modVantrel
