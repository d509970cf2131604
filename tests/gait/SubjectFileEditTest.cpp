// SPDX-License-Identifier: GPL-3.0-or-later

// What is kept in a trial's subject.ini, and that nothing else in it is touched.

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "gait/SubjectFile.h"
#include "gait/SubjectFileEdit.h"
#include "tests/ErrorNumbers.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::KeepInSubjectFile;
using modVantrel::SubjectEntry;
using modVantrel::WithSubjectEntries;
using namespace std::string_literals;

const std::vector<SubjectEntry> kBirth = {{"DOB", "1980-02-29"}};

TEST(SubjectEntries, OfAMissingKeyGetALineAtTheEnd) {
  EXPECT_EQ(WithSubjectEntries("", kBirth), "DOB = 1980-02-29\n");
  EXPECT_EQ(WithSubjectEntries("Gender=F\n", kBirth), "Gender=F\nDOB = 1980-02-29\n");
  EXPECT_EQ(WithSubjectEntries("Gender=F", kBirth), "Gender=F\nDOB = 1980-02-29\n");
}

TEST(SubjectEntries, StandBeforeTheFirstSection) {
  EXPECT_EQ(WithSubjectEntries("Name=x\n [Plates]\nDate=1\n", kBirth),
            "Name=x\nDOB = 1980-02-29\n [Plates]\nDate=1\n");
}

TEST(SubjectEntries, ReplaceTheValueThatIsReadAndNothingElse) {
  EXPECT_EQ(
      WithSubjectEntries("; of the visit\n dob \t=  '1.2.80'\nDOB = 2\nName = \xE9\n", kBirth),
      "; of the visit\n dob \t= 1980-02-29\nDOB = 2\nName = \xE9\n");
}

TEST(SubjectEntries, KeepTheEndsOfTheLines) {
  EXPECT_EQ(WithSubjectEntries("Name=x\r\nDOB=1\r\n", kBirth), "Name=x\r\nDOB= 1980-02-29\r\n");
  EXPECT_EQ(WithSubjectEntries("Name=x\r\n", kBirth), "Name=x\r\nDOB = 1980-02-29\r\n");
  EXPECT_EQ(WithSubjectEntries("Name=x\r", kBirth), "Name=x\rDOB = 1980-02-29\r");
}

TEST(SubjectEntries, ThatAreEmptyEmptyTheLineAndAddNone) {
  EXPECT_EQ(WithSubjectEntries("DOB=1\nName=x\n", {{"DOB", ""}}), "DOB=\nName=x\n");
  EXPECT_EQ(WithSubjectEntries("Name=x\n", {{"DOB", ""}}), "Name=x\n");
}

TEST(SubjectEntries, KeepUtf16AndItsLettersByteForByte) {
  const std::string little =
      "\xFF\xFEN\0=\0\x42\x30\x00\xD8\n\0D\0O\0B\0=\0"
      "1\0\n\0"s;
  const std::string changed = WithSubjectEntries(little, {{"DOB", "2"}});
  EXPECT_EQ(changed,
            "\xFF\xFEN\0=\0\x42\x30\x00\xD8\n\0D\0O\0B\0=\0 \0"
            "2\0\n\0"s);
  const std::string big = "\xFE\xFF\0N\0=\x30\x42"s;
  EXPECT_EQ(WithSubjectEntries(big, {{"DOB", "2"}}),
            "\xFE\xFF\0N\0=\x30\x42\0\n\0D\0O\0B\0 \0=\0 \0"
            "2\0\n"s);
}

TEST(SubjectEntries, KeepTheMarkOfUtf8) {
  EXPECT_EQ(WithSubjectEntries("\xEF\xBB\xBFName=x\n", kBirth),
            "\xEF\xBB\xBFName=x\nDOB = 1980-02-29\n");
}

TEST(SubjectEntries, AreReadBackAsTheyWerePut) {
  for (const std::string& bytes :
       {""s, "dob=1\r\n"s, "[s]\nDOB=3"s, "\xFF\xFE"s, "\xFE\xFF\0\n"s}) {
    const std::string text = modVantrel::SubjectFileText(WithSubjectEntries(bytes, kBirth));
    EXPECT_EQ(modVantrel::IniValue(text, "DOB"), "1980-02-29") << bytes;
  }
}

TEST(SubjectEntries, GoIntoNoOtherKindOfFile) {
  const auto refused = [](const std::string& bytes) {
    return tests::ErrorNumberOf([&] { (void)WithSubjectEntries(bytes, kBirth); });
  };
  EXPECT_EQ(refused("\x02P\0\0"s), tests::kPathFileAccessError);
  EXPECT_EQ(refused(std::string(modVantrel::kLargestSubjectFile + 1, 'x')),
            tests::kPathFileAccessError);
}

class KeptSubject : public testing::Test {
 protected:
  std::string Trial() const { return (folder_ / "trial.c3d").string(); }
  std::filesystem::path File() const { return folder_ / "subject.ini"; }
  std::string Bytes() const {
    std::ifstream file(File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  tests::TemporaryFolder folder_;
};

TEST_F(KeptSubject, MakesTheFileInTheTrialsFolder) {
  KeepInSubjectFile(Trial(), {{"Gender", "Female"}, {"Date", "2026-11-20"}});
  EXPECT_EQ(Bytes(), "Gender = Female\nDate = 2026-11-20\n");
}

TEST_F(KeptSubject, KeepsWhatElseTheFileHolds) {
  std::ofstream(File(), std::ios::binary) << "Surgeon = x\r\nGender = M\r\n";
  KeepInSubjectFile(Trial(), {{"Gender", "Female"}});
  EXPECT_EQ(Bytes(), "Surgeon = x\r\nGender = Female\r\n");
}

TEST_F(KeptSubject, ANameThatIsAFolderOrAForeignFileIsLeftAndNamed) {
  std::ofstream(File(), std::ios::binary) << "\x02P\0\0 no text"s;
  try {
    KeepInSubjectFile(Trial(), kBirth);
    FAIL() << "it was replaced";
  } catch (const modAllPurpose::RuntimeError& error) {
    EXPECT_EQ(error.About(), File().string() + ": it is no text");
  }
  EXPECT_EQ(Bytes(), "\x02P\0\0 no text"s);
  std::filesystem::remove(File());
  std::filesystem::create_directory(File());
  EXPECT_EQ(tests::ErrorNumberOf([&] { KeepInSubjectFile(Trial(), kBirth); }),
            tests::kPathFileAccessError);
  EXPECT_TRUE(std::filesystem::is_directory(File()));
}

}  // namespace
