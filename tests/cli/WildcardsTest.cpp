// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/Wildcards.h"
#include "support/RuntimeError.h"
#include "tests/TestTrials.h"

namespace {

using cli::FolderEntry;
using cli::HasWildcard;
using testing::ElementsAre;
using testing::IsEmpty;

// Of ASCII letters and one umlaut.
wchar_t Capital(wchar_t letter) {
  if (letter == L'\u00E4') return L'\u00C4';
  return letter >= L'a' && letter <= L'z' ? static_cast<wchar_t>(letter - L'a' + L'A') : letter;
}

bool Fits(const std::wstring& name, const std::wstring& pattern) {
  return cli::FitsWildcards(name, pattern, Capital);
}

TEST(HasWildcard, LooksAtTheLastNameOnly) {
  EXPECT_TRUE(HasWildcard("*.c3d"));
  EXPECT_TRUE(HasWildcard("trials/walk ?.c3d"));
  EXPECT_TRUE(HasWildcard(R"(C:\trials\*)"));
  EXPECT_TRUE(HasWildcard("C:*.c3d"));
  EXPECT_FALSE(HasWildcard("walk.c3d"));
  EXPECT_FALSE(HasWildcard(""));
  EXPECT_FALSE(HasWildcard(R"(\\?\C:\trials\walk.c3d)"));
  EXPECT_FALSE(HasWildcard("tri*s/walk.c3d"));
}

TEST(FitsWildcards, WithoutOneComparesTheWholeName) {
  EXPECT_TRUE(Fits(L"walk.c3d", L"walk.c3d"));
  EXPECT_FALSE(Fits(L"walk.c3d", L"walk"));
  EXPECT_FALSE(Fits(L"walk", L"walk.c3d"));
  EXPECT_FALSE(Fits(L"walk", L""));
}

TEST(FitsWildcards, TakesEitherCase) {
  EXPECT_TRUE(Fits(L"Walk.C3D", L"wALK.c3d"));
  EXPECT_TRUE(Fits(L"G\u00E4nge.c3d", L"g\u00C4*"));
}

TEST(FitsWildcards, LetsAStarStandForAnyLetters) {
  EXPECT_TRUE(Fits(L"walk.c3d", L"*.c3d"));
  EXPECT_TRUE(Fits(L".c3d", L"*.c3d")) << "none";
  EXPECT_TRUE(Fits(L"walk.c3d", L"*"));
  EXPECT_TRUE(Fits(L"walk.c3d", L"w**d*"));
  EXPECT_TRUE(Fits(L"a.c3d.c3d", L"*.c3d")) << "the first ending is not the last";
  EXPECT_TRUE(Fits(L"abab abc", L"a*abc"));
  EXPECT_FALSE(Fits(L"abab abd", L"a*abc"));
}

TEST(FitsWildcards, TakesNoLongerEndingForTheOneAskedFor) {
  EXPECT_FALSE(Fits(L"x.c3dbak", L"*.c3d"));
  EXPECT_FALSE(Fits(L"x.c3d~", L"*.c3d"));
}

TEST(FitsWildcards, LetsAQuestionMarkStandForOneLetterExactly) {
  EXPECT_TRUE(Fits(L"walk 1.c3d", L"walk ?.c3d"));
  EXPECT_FALSE(Fits(L"walk 10.c3d", L"walk ?.c3d"));
  EXPECT_FALSE(Fits(L"walk .c3d", L"walk ?.c3d"));
  EXPECT_TRUE(Fits(L"walk 10.c3d", L"walk ??.c3d"));
  EXPECT_TRUE(Fits(L"walk 10.c3d", L"*?.c3d"));
  EXPECT_FALSE(Fits(L"", L"?"));
}

TEST(FitsWildcards, LetsAnyEndingBeNone) {
  EXPECT_TRUE(Fits(L"walk", L"*.*"));
  EXPECT_TRUE(Fits(L"walk.c3d", L"*.*"));
  EXPECT_TRUE(Fits(L"walk", L"walk.*"));
  EXPECT_FALSE(Fits(L"walking", L"walk.*"));
}

// Trying every way would take longer than anyone waits.
TEST(FitsWildcards, IsQuickWithManyStars) {
  std::wstring pattern;
  for (int k = 0; k < 100; ++k) pattern += L"*a";
  EXPECT_FALSE(Fits(std::wstring(5000, L'a'), pattern + L"b"));
}

// A folder that lists these entries and then ends, or fails.
class Listed {
 public:
  explicit Listed(std::vector<FolderEntry> entries, bool fails = false)
      : entries_(std::move(entries)), fails_(fails) {}

  std::vector<std::wstring> FilesThatFit(const std::wstring& pattern) {
    return cli::FilesThatFit(
        pattern, [this] { return Next(); }, Capital);
  }

 private:
  std::optional<FolderEntry> Next() {
    if (next_ < entries_.size()) return entries_[next_++];
    if (fails_) throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::DeviceIoError);
    return std::nullopt;
  }

  std::vector<FolderEntry> entries_;
  bool fails_;
  std::size_t next_ = 0;
};

TEST(FilesThatFit, AreSorted) {
  EXPECT_THAT(Listed({{L"c.c3d"}, {L"a.c3d"}, {L"b.c3d"}}).FilesThatFit(L"*.c3d"),
              ElementsAre(L"a.c3d", L"b.c3d", L"c.c3d"));
}

TEST(FilesThatFit, LeaveOutFoldersAndWhatTheSystemFoundByAShortName) {
  EXPECT_THAT(Listed({{L"a.c3d"}, {L"b.c3d", true}, {L"x.c3dbak"}}).FilesThatFit(L"*.c3d"),
              ElementsAre(L"a.c3d"));
}

TEST(FilesThatFit, AreNoneInAnEmptyFolder) {
  EXPECT_THAT(Listed({}).FilesThatFit(L"*"), IsEmpty());
}

TEST(FilesThatFit, FailWhereTheFolderCannotBeReadToItsEnd) {
  EXPECT_EQ(tests::ErrorNumberOf([] {
              Listed({{L"a.c3d"}, {L"b.c3d"}}, true).FilesThatFit(L"*.c3d");
            }),
            57);
}

}  // namespace
