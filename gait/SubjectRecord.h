// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/ParamCatalog.h"

namespace modVantrel {

// Who walked and when. What is not known is empty.
struct SubjectRecord {
  std::string Gender;
  std::optional<std::chrono::year_month_day> DateOfBirth;
  std::optional<std::chrono::year_month_day> VisitDate;
};

// What a caller knows of the subject. Dates are ISO (2026-11-20); what is no date counts as
// missing.
struct SubjectOptions {
  std::string Gender;
  std::string DateOfBirth;
  std::string VisitDate;
};

// Each entry from the first place that has it: `options`, the trial's own parameters, the file
// "subject.ini" in the trial's folder. Nothing is guessed. Errors while reading parameters are
// passed on.
SubjectRecord FindSubject(const FileState& state, const SubjectOptions& options);

// A date of the subject as it is given.
struct GivenDate {
  std::string Place;  // "SUBJECTS:DOB", or "subject.ini"
  std::string Text;
  std::optional<std::chrono::year_month_day> Date;  // none where the text is no date
};

// What the trial itself and the file "subject.ini" in its folder give, whether it can be used or
// not. Dates stand in the order in which FindSubject looks for them.
struct SubjectSources {
  std::string Gender;
  std::string GenderPlace;  // as that of a date; empty without a gender
  std::vector<GivenDate> BirthDates;
  std::vector<GivenDate> VisitDates;
};

// Errors while reading parameters are passed on.
SubjectSources FindSubjectSources(const std::string& trial, const ParamCatalog& params);

// The calendar date that `text` writes as YYYY-MM-DD, blanks around it aside.
std::optional<std::chrono::year_month_day> ParseIsoDate(std::string_view text);

// "Male" or "Female" by the first letter, in either case, of `gender`, blanks in front aside;
// otherwise "NotSpecified".
std::string_view GenderName(std::string_view gender);

// The days between both dates / 365, without a correction for leap years; 0 where one is missing.
double AgeInYears(const std::optional<std::chrono::year_month_day>& dateOfBirth,
                  const std::optional<std::chrono::year_month_day>& visitDate);

}  // namespace modVantrel
