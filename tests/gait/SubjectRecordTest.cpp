// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "gait/SubjectRecord.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using sample::TextParam;
using sample::TrialBuilder;
using std::chrono::year_month_day;
using tests::OpenedTrial;

using Date = std::optional<year_month_day>;

Date On(int year, unsigned month, unsigned day) {
  return year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day));
}

// What is known of the subject of a trial with a file subject.ini of that text beside it.
SubjectRecord Find(const TrialBuilder& builder, const SubjectOptions& options = {},
                   const std::string& ini = "") {
  OpenedTrial trial(builder);
  if (!ini.empty()) {
    std::ofstream(trial.File().parent_path() / "subject.ini", std::ios::binary) << ini;
  }
  return FindSubject(trial.State(), options);
}

TEST(ParseIsoDate, TakesCalendarDatesOnly) {
  EXPECT_EQ(ParseIsoDate("2026-11-20"), On(2026, 11, 20));
  EXPECT_EQ(ParseIsoDate("  2026-11-20 "), On(2026, 11, 20));
  EXPECT_EQ(ParseIsoDate("2024-02-29"), On(2024, 2, 29));
  for (const std::string text :
       {"", "2023-02-29", "2026-13-01", "2026-00-10", "2026-01-32", "2026-1-2", "20.11.2026",
        "2026/11/20", "2026-11-20T08:00", "26-11-20", "abcd-ef-gh", "-026-11-20", "2026--1-20",
        "+026-11-20", "2026-11- 2"}) {
    EXPECT_EQ(ParseIsoDate(text), Date()) << text;
  }
}

TEST(GenderName, IsTheFirstLetterInEitherCase) {
  for (const std::string gender : {"M", "m", "Male", "man"}) EXPECT_EQ(GenderName(gender), "Male");
  for (const std::string gender : {"F", "f", "Female"}) EXPECT_EQ(GenderName(gender), "Female");
  for (const std::string gender : {" M", "  m ", " Male"}) EXPECT_EQ(GenderName(gender), "Male");
  for (const std::string gender : {"", " ", "W", "weiblich", "x", "1", "\"M\"", "x m"}) {
    EXPECT_EQ(GenderName(gender), "NotSpecified") << gender;
  }
}

TEST(AgeInYears, IsTheDaysBetweenOver365) {
  EXPECT_EQ(AgeInYears(On(2025, 1, 1), On(2026, 1, 1)), 1.0);
  EXPECT_EQ(AgeInYears(On(2024, 1, 1), On(2025, 1, 1)), 366.0 / 365.0) << "leap years count";
  EXPECT_EQ(AgeInYears(On(2026, 5, 11), On(2026, 5, 11)), 0.0);
  EXPECT_EQ(AgeInYears(On(2026, 1, 2), On(2026, 1, 1)), -1.0 / 365.0);
}

TEST(AgeInYears, IsZeroWhereADateIsMissing) {
  EXPECT_EQ(AgeInYears({}, On(2026, 1, 1)), 0.0);
  EXPECT_EQ(AgeInYears(On(2026, 1, 1), {}), 0.0);
  EXPECT_EQ(AgeInYears({}, {}), 0.0);
}

TEST(FindSubject, KnowsNothingOfABareTrial) {
  const SubjectRecord subject = Find(TrialBuilder());
  EXPECT_EQ(subject.Gender, "");
  EXPECT_EQ(subject.DateOfBirth, Date());
  EXPECT_EQ(subject.VisitDate, Date());
}

TEST(FindSubject, TakesEachParameterNameOfEachGroup) {
  for (const std::string group : {"SUBJECT", "SUBJECTS", "SUBJECT_INFO", "PROCESSING", "TRIAL"}) {
    for (const std::string name : {"GENDER", "SEX"}) {
      EXPECT_EQ(Find(TrialBuilder().SetParam(group, TextParam(name, "Male"))).Gender, "Male")
          << group << ':' << name;
    }
    for (const std::string name : {"DOB", "BIRTHDATE", "DATE_OF_BIRTH", "DATEOFBIRTH"}) {
      EXPECT_EQ(Find(TrialBuilder().SetParam(group, TextParam(name, "2014-03-02"))).DateOfBirth,
                On(2014, 3, 2))
          << group << ':' << name;
    }
    for (const std::string name : {"DATE", "VISIT_DATE", "TRIAL_DATE"}) {
      EXPECT_EQ(Find(TrialBuilder().SetParam(group, TextParam(name, "2026-05-11"))).VisitDate,
                On(2026, 5, 11))
          << group << ':' << name;
    }
  }
}

TEST(FindSubject, NamesOfGroupsAndParametersAreTakenInAnyCase) {
  EXPECT_EQ(Find(TrialBuilder().SetParam("Subject", TextParam("Sex", "f"))).Gender, "f");
}

TEST(FindSubject, OtherGroupsAndNamesSayNothing) {
  const SubjectRecord subject = Find(TrialBuilder()
                                         .SetParam("PATIENT", TextParam("GENDER", "Male"))
                                         .SetParam("SUBJECT", TextParam("GENDERS", "Male"))
                                         .SetParam("TRIAL", TextParam("BIRTH", "2014-03-02")));
  EXPECT_EQ(subject.Gender, "");
  EXPECT_EQ(subject.DateOfBirth, Date());
}

TEST(FindSubject, EarlierGroupAndEarlierNameWin) {
  const std::vector<std::string> groups = {"SUBJECT", "SUBJECTS", "SUBJECT_INFO", "PROCESSING",
                                           "TRIAL"};
  for (std::size_t first = 0; first + 1 < groups.size(); ++first) {
    TrialBuilder builder;
    // The later group stands first in the file.
    builder.SetParam(groups[first + 1], TextParam("GENDER", "later"))
        .SetParam(groups[first], TextParam("SEX", "earlier"));
    EXPECT_EQ(Find(builder).Gender, "earlier") << groups[first];
  }
  EXPECT_EQ(Find(TrialBuilder()
                     .SetParam("SUBJECT", TextParam("SEX", "second"))
                     .SetParam("SUBJECT", TextParam("GENDER", "first")))
                .Gender,
            "first");
}

TEST(FindSubject, EmptyGenderAndWhatIsNoDateCountAsMissing) {
  const SubjectRecord subject = Find(TrialBuilder()
                                         .SetParam("SUBJECT", TextParam("GENDER", "   "))
                                         .SetParam("TRIAL", TextParam("GENDER", "Male"))
                                         .SetParam("SUBJECT", TextParam("DOB", "2 March 2014"))
                                         .SetParam("TRIAL", TextParam("DOB", "2014-03-02"))
                                         .SetParam("TRIAL", sample::SingleParam("DATE", 2026)));
  EXPECT_EQ(subject.Gender, "Male");
  EXPECT_EQ(subject.DateOfBirth, On(2014, 3, 2));
  EXPECT_EQ(subject.VisitDate, Date());
}

TEST(FindSubject, ParameterEndsAtItsFirstNul) {
  using std::string_literals::operator""s;
  const SubjectRecord subject =
      Find(TrialBuilder()
               .SetParam("SUBJECT", TextParam("GENDER", "\0Male"s))
               .SetParam("TRIAL", TextParam("GENDER", "Female\0\0"s))
               .SetParam("SUBJECT", TextParam("DOB", "2014-03-02\0old"s)));
  EXPECT_EQ(subject.Gender, "Female");
  EXPECT_EQ(subject.DateOfBirth, On(2014, 3, 2));
}

TEST(FindSubject, OptionsComeBeforeParametersAndThoseBeforeTheFile) {
  TrialBuilder builder;
  builder.SetParam("SUBJECT", TextParam("GENDER", "Female"))
      .SetParam("SUBJECT", TextParam("DOB", "2014-03-02"));
  const std::string ini = "Gender=x\nDOB=2001-01-01\nDate=2002-02-02\n";
  const SubjectRecord without = Find(builder, {}, ini);
  EXPECT_EQ(without.Gender, "Female");
  EXPECT_EQ(without.DateOfBirth, On(2014, 3, 2));
  EXPECT_EQ(without.VisitDate, On(2002, 2, 2)) << "the file fills what is missing";
  const SubjectRecord with = Find(builder, {"Male", "2010-10-10", "2011-11-11"}, ini);
  EXPECT_EQ(with.Gender, "Male");
  EXPECT_EQ(with.DateOfBirth, On(2010, 10, 10));
  EXPECT_EQ(with.VisitDate, On(2011, 11, 11));
}

TEST(FindSubject, GenderOfBlanksCountsAsMissing) {
  TrialBuilder builder;
  builder.SetParam("SUBJECT", TextParam("GENDER", "Female"));
  EXPECT_EQ(Find(builder, {"  ", "", ""}).Gender, "Female");
}

TEST(FindSubject, OptionThatIsNoDateCountsAsMissing) {
  EXPECT_EQ(Find(TrialBuilder().SetParam("SUBJECT", TextParam("DOB", "2014-03-02")),
                 {"", "yesterday", "yesterday"})
                .DateOfBirth,
            On(2014, 3, 2));
}

TEST(SubjectFile, IsReadWithAByteOrderMarkAndInAnyCase) {
  const SubjectRecord subject =
      Find(TrialBuilder(), {},
           "\xEF\xBB\xBFgender = Female\r\n; a remark\r\n\tdob\t=\t2014-03-02 \r\nDATE=2026-05-11");
  EXPECT_EQ(subject.Gender, "Female");
  EXPECT_EQ(subject.DateOfBirth, On(2014, 3, 2));
  EXPECT_EQ(subject.VisitDate, On(2026, 5, 11));
}

// `text`, of ASCII letters, in UTF-16 behind its mark.
std::string Utf16File(std::string_view text, bool bigEndian) {
  std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char letter : text) {
    bytes += bigEndian ? '\0' : letter;
    bytes += bigEndian ? letter : '\0';
  }
  return bytes;
}

void ExpectTheSubjectOf(const std::string& ini, const std::string& what) {
  const SubjectRecord subject = Find(TrialBuilder(), {}, ini);
  EXPECT_EQ(subject.Gender, "Female") << what;
  EXPECT_EQ(subject.DateOfBirth, On(2014, 3, 2)) << what;
  EXPECT_EQ(subject.VisitDate, On(2026, 5, 11)) << what;
}

TEST(SubjectFile, IsReadInEveryEncodingAndWithEveryLineEnd) {
  for (const std::string end : {"\n", "\r\n", "\r"}) {
    const std::string text =
        "[Subject]" + end + "Gender=Female" + end + "DOB=2014-03-02" + end + "Date=2026-05-11";
    for (const std::string& ini : {text, text + end}) {
      ExpectTheSubjectOf(ini, "UTF-8");
      ExpectTheSubjectOf("\xEF\xBB\xBF" + ini, "UTF-8 with its mark");
      ExpectTheSubjectOf(Utf16File(ini, false), "UTF-16 LE");
      ExpectTheSubjectOf(Utf16File(ini, true), "UTF-16 BE");
      ExpectTheSubjectOf(Utf16File(ini, true) + "x", "half a character behind");
    }
  }
}

TEST(SubjectFile, LosesQuotesAndWhiteSpaceAroundItsValues) {
  ExpectTheSubjectOf(" gender = \"Female\" \n\tDOB\t=\t'2014-03-02'\t\n Date=\" 2026-05-11 \"\n",
                     "quoted");
  EXPECT_EQ(Find(TrialBuilder(), {}, "Gender=\"\n").Gender, "\"") << "one quote is none";
  EXPECT_EQ(Find(TrialBuilder(), {}, "Gender=\"\"\n").Gender, "");
  EXPECT_EQ(Find(TrialBuilder(), {}, "Gender='\tFemale\t'\n").Gender, "Female");
}

TEST(SubjectFile, LinesThatSayNothingAreLeftOut) {
  ExpectTheSubjectOf(
      "[Gender=Male]\n; Gender=Male\n#Gender=Male\n=Male\nGenders=Male\n\n\nGender=Female\n"
      "Gender=Male\nDOB=2014-03-02\nDate=2026-05-11\n",
      "among others");
}

TEST(SubjectFile, KeepsLettersOutsideAscii) {
  EXPECT_EQ(Find(TrialBuilder(), {}, "Gender=f\u00E9minin\n").Gender, "f\u00E9minin");
  EXPECT_EQ(Find(TrialBuilder(), {}, Utf16File("Gender=", false) + "\xAC\x20").Gender, "\u20AC");
}

// A file whose line "Gender=Female" ends, with its line's end, at the byte `end`.
std::string FileWithGenderAt(std::size_t end, const std::string& behind) {
  const std::string line = "\nGender=Female\n";
  return std::string(end - line.size(), ';') + line + behind;
}

TEST(SubjectFile, IsReadInItsFirst64KiBAndThereInWholeLines) {
  constexpr std::size_t kLimit = 65536;
  for (const std::string behind : {"", "x", "\nDOB=2014-03-02\n"}) {
    EXPECT_EQ(Find(TrialBuilder(), {}, FileWithGenderAt(kLimit, behind)).Gender, "Female");
    EXPECT_EQ(Find(TrialBuilder(), {}, FileWithGenderAt(kLimit, behind)).DateOfBirth, Date());
  }
  for (const std::size_t over : {1U, 2U, 5U, 8U}) {
    EXPECT_EQ(Find(TrialBuilder(), {}, FileWithGenderAt(kLimit + over, "x")).Gender, "")
        << over << " bytes of the line lie behind";
  }
  std::string whole = FileWithGenderAt(kLimit + 1, "");
  whole.pop_back();
  EXPECT_EQ(Find(TrialBuilder(), {}, whole).Gender, "Female") << "a last line without its end";
}

TEST(SubjectFile, IsCutBetweenItsCharacters) {
  const std::string line = "\r\nGender=Female\r\n";
  const std::string text = std::string(32767 - line.size(), ';') + line;  // with its mark, 64 KiB
  for (const bool bigEndian : {false, true}) {
    EXPECT_EQ(Find(TrialBuilder(), {}, Utf16File(text + "DOB=2014-03-02", bigEndian)).Gender,
              "Female");
    EXPECT_EQ(Find(TrialBuilder(), {}, Utf16File(";;" + text, bigEndian)).Gender, "")
        << "the end of the line lies behind";
  }
  EXPECT_EQ(Find(TrialBuilder(), {}, FileWithGenderAt(65535, "\u00E4")).Gender, "Female");
}

TEST(SubjectFile, DatesThatAreNoneCountAsMissing) {
  const SubjectRecord subject =
      Find(TrialBuilder(), {}, "[Subject]\nDOB=02.03.2014\nDate=\nGender\nGenders=x\n");
  EXPECT_EQ(subject.DateOfBirth, Date());
  EXPECT_EQ(subject.VisitDate, Date());
  EXPECT_EQ(subject.Gender, "");
}

TEST(SubjectFile, FolderOfItsNameIsNoFile) {
  OpenedTrial trial{TrialBuilder()};
  std::filesystem::create_directory(trial.File().parent_path() / "subject.ini");
  EXPECT_EQ(FindSubject(trial.State(), {}).Gender, "");
}

}  // namespace
