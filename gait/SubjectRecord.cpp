// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/SubjectRecord.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <span>
#include <utility>

#include "c3d/ParameterSection.h"
#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::IgnoringErrors;
using modAllPurpose::StripAtNul;
using modAllPurpose::Trimmed;
using modAllPurpose::UpperCase;
using Date = std::optional<std::chrono::year_month_day>;

namespace {

constexpr std::array kGroups = {"SUBJECT", "SUBJECTS", "SUBJECT_INFO", "PROCESSING", "TRIAL"};
constexpr std::array kGenderParams = {"GENDER", "SEX"};
constexpr std::array kBirthParams = {"DOB", "BIRTHDATE", "DATE_OF_BIRTH", "DATEOFBIRTH"};
constexpr std::array kVisitParams = {"DATE", "VISIT_DATE", "TRIAL_DATE"};

constexpr std::size_t kLargestSubjectFile = std::size_t{64} * 1024;
constexpr double kDaysPerYear = 365.0;

// Calls `take` with the text of each parameter of those names, group by group, until it answers
// true.
template <typename Take>
void TryParams(const FileState& state, std::span<const char* const> names, Take take) {
  for (const char* group : kGroups) {
    for (const char* name : names) {
      const auto text = FindGroupAndParam(state, group, name).Param.TextValues.First();
      if (text && take(StripAtNul(*text))) return;
    }
  }
}

// The text of "subject.ini" beside the trial; empty where it cannot be read.
std::string SubjectFileText(const FileState& state) {
  const auto trial = modAllPurpose::NativePath(state.OpenC3dFileSpec);
  std::string text;
  IgnoringErrors([&] {
    modAllPurpose::RandomAccessFile file;
    file.Open(modAllPurpose::Utf8Path(trial.parent_path() / "subject.ini"));
    std::string read(kLargestSubjectFile, '\0');
    read.resize(file.ReadAt(0, std::as_writable_bytes(std::span(read))));
    text = std::move(read);
  });
  return text;
}

std::string_view TrimmedOfWhiteSpace(std::string_view text) {
  constexpr std::string_view kWhite = " \t\r";
  const auto first = text.find_first_not_of(kWhite);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

// The value of the first line "KEY = value" of `text`; keys are compared without case.
std::string_view IniValue(std::string_view text, std::string_view upperKey) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    if (UpperCase(TrimmedOfWhiteSpace(line.substr(0, equals))) == upperKey) {
      return TrimmedOfWhiteSpace(line.substr(equals + 1));
    }
  }
  return {};
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
  if (!option.empty()) return option;
  std::string gender;
  TryParams(state, kGenderParams, [&gender](std::string_view text) {
    gender = text;
    return !gender.empty();
  });
  return gender.empty() ? std::string(iniValue) : gender;
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
  const std::string file = SubjectFileText(state);
  return {FindGender(state, options.Gender, IniValue(file, "GENDER")),
          FindDate(state, options.DateOfBirth, kBirthParams, IniValue(file, "DOB")),
          FindDate(state, options.VisitDate, kVisitParams, IniValue(file, "DATE"))};
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
  const std::string first = UpperCase(gender.substr(0, 1));
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
