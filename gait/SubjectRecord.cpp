// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/SubjectRecord.h"

#include <array>
#include <charconv>
#include <span>

#include "c3d/ParameterSection.h"
#include "gait/SubjectFile.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::StripAtNul;
using modAllPurpose::Trimmed;
using modAllPurpose::UpperCase;
using Date = std::optional<std::chrono::year_month_day>;

namespace {

constexpr std::array kGroups = {"SUBJECT", "SUBJECTS", "SUBJECT_INFO", "PROCESSING", "TRIAL"};
constexpr std::array kGenderParams = {"GENDER", "SEX"};
constexpr std::array kBirthParams = {"DOB", "BIRTHDATE", "DATE_OF_BIRTH", "DATEOFBIRTH"};
constexpr std::array kVisitParams = {"DATE", "VISIT_DATE", "TRIAL_DATE"};

constexpr double kDaysPerYear = 365.0;

// Calls `take` with the text of each parameter of those names and the names of group and parameter,
// group by group, until it answers true. `find` is given both names.
template <typename Find, typename Take>
void TryParamsBy(const Find& find, std::span<const char* const> names, Take take) {
  for (const char* group : kGroups) {
    for (const char* name : names) {
      const std::optional<std::string> text = find(group, name);
      if (text && take(StripAtNul(*text), group, name)) return;
    }
  }
}

template <typename Take>
void TryParams(const FileState& state, std::span<const char* const> names, Take take) {
  const auto find = [&state](const char* group, const char* name) {
    return FindGroupAndParam(state, group, name).Param.TextValues.First();
  };
  TryParamsBy(find, names, [&](std::string_view text, auto...) { return take(text); });
}

Date FindDate(const FileState& state, const std::string& option,
              std::span<const char* const> params, std::string_view iniValue) {
  Date date = ParseIsoDate(option);
  if (date) return date;
  TryParams(state, params, [&date](std::string_view text) {
    date = ParseIsoDate(text);
    return date.has_value();
  });
  return date ? date : ParseIsoDate(iniValue);
}

std::string FindGender(const FileState& state, const std::string& option,
                       std::string_view iniValue) {
  if (!Trimmed(option).empty()) return option;
  std::string gender;
  TryParams(state, kGenderParams, [&gender](std::string_view text) {
    gender = Trimmed(text);
    return !gender.empty();
  });
  return gender.empty() ? std::string(iniValue) : gender;
}

std::string PlaceOf(const char* group, const char* name) { return std::string(group) + ':' + name; }

// The texts of a kind that are given, dates or not.
std::vector<GivenDate> DatesGiven(const ParamCatalog& params, std::span<const char* const> names,
                                  std::string_view iniValue) {
  std::vector<GivenDate> dates;
  const auto find = [&params](const char* group, const char* name) {
    return params.Param(group, name).TextValues.First();
  };
  TryParamsBy(find, names, [&](std::string_view text, const char* group, const char* name) {
    if (Trimmed(text).empty()) return false;
    dates.push_back({PlaceOf(group, name), std::string(Trimmed(text)), ParseIsoDate(text)});
    return false;
  });
  if (!iniValue.empty()) {
    dates.push_back({std::string(kSubjectFileName), std::string(iniValue), ParseIsoDate(iniValue)});
  }
  return dates;
}

void FindGenderGiven(const ParamCatalog& params, std::string_view iniValue,
                     SubjectSources& sources) {
  const auto find = [&params](const char* group, const char* name) {
    return params.Param(group, name).TextValues.First();
  };
  TryParamsBy(find, kGenderParams, [&](std::string_view text, const char* group, const char* name) {
    sources.Gender = Trimmed(text);
    sources.GenderPlace = PlaceOf(group, name);
    return !sources.Gender.empty();
  });
  if (!sources.Gender.empty()) return;
  sources.Gender = iniValue;
  sources.GenderPlace = iniValue.empty() ? "" : kSubjectFileName;
}

// The number that `digits` write; nothing where anything but digits stands there.
std::optional<int> DigitsOnly(std::string_view digits) {
  int number = 0;
  const char* end = digits.data() + digits.size();
  const auto parsed = std::from_chars(digits.data(), end, number);
  if (digits.starts_with('-') || parsed.ec != std::errc() || parsed.ptr != end) return {};
  return number;
}

}  // namespace

SubjectRecord FindSubject(const FileState& state, const SubjectOptions& options) {
  const BinaryFile::Look look(state.C3dFileNumber);
  const std::string file = ReadSubjectFile(state.OpenC3dFileSpec);
  return {FindGender(state, options.Gender, IniValue(file, "GENDER")),
          FindDate(state, options.DateOfBirth, kBirthParams, IniValue(file, "DOB")),
          FindDate(state, options.VisitDate, kVisitParams, IniValue(file, "DATE"))};
}

SubjectSources FindSubjectSources(const std::string& trial, const ParamCatalog& params) {
  const std::string file = ReadSubjectFile(trial);
  SubjectSources sources;
  FindGenderGiven(params, IniValue(file, "GENDER"), sources);
  sources.BirthDates = DatesGiven(params, kBirthParams, IniValue(file, "DOB"));
  sources.VisitDates = DatesGiven(params, kVisitParams, IniValue(file, "DATE"));
  return sources;
}

Date ParseIsoDate(std::string_view text) {
  text = Trimmed(text);
  constexpr std::string_view kForm = "YYYY-MM-DD";
  if (text.size() != kForm.size() || text[4] != '-' || text[7] != '-') return {};
  const auto year = DigitsOnly(text.substr(0, 4));
  const auto month = DigitsOnly(text.substr(5, 2));
  const auto day = DigitsOnly(text.substr(8, 2));
  if (!year || !month || !day) return {};
  const std::chrono::year_month_day date{std::chrono::year(*year),
                                         std::chrono::month(static_cast<unsigned>(*month)),
                                         std::chrono::day(static_cast<unsigned>(*day))};
  return date.ok() ? Date(date) : Date();
}

std::string_view GenderName(std::string_view gender) {
  const std::string first = UpperCase(Trimmed(gender).substr(0, 1));
  if (first == "M") return "Male";
  if (first == "F") return "Female";
  return "NotSpecified";
}

double AgeInYears(const Date& dateOfBirth, const Date& visitDate) {
  if (!dateOfBirth || !visitDate) return 0;
  const auto days = std::chrono::sys_days(*visitDate) - std::chrono::sys_days(*dateOfBirth);
  return static_cast<double>(days.count()) / kDaysPerYear;
}

}  // namespace modVantrel
