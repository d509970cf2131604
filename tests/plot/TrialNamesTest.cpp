// SPDX-License-Identifier: GPL-3.0-or-later

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plot/Numbers.h"
#include "plot/TrialNames.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const plot::TextStyle kStyle{plot::Face::Regular, 66, Qt::black};

std::vector<QString> LinesOf(const std::vector<std::string>& names, double room) {
  std::vector<pages::PageFile> files;
  for (const std::string& name : names) files.push_back({name, {}, 100});
  auto lines = plot::TrialNameLines(files, kStyle, room);
  for (const QString& line : lines) EXPECT_LE(plot::WidthOf(line, kStyle), room);
  return lines;
}

TEST(TrialNames, ThatFitStandWithoutTheirFolders) {
  EXPECT_THAT(LinesOf({"/visit/a.c3d", "b.c3d", "C:\\visit\\c.c3d"}, 4000),
              ElementsAre(QStringLiteral("a.c3d  b.c3d  c.c3d")));
}

TEST(TrialNames, ThatAreLongAreShortenedInTheMiddle) {
  const std::string name = "Subject 0815 walking at a speed of their own choice barefoot 03.c3d";
  const auto lines = LinesOf({name, name, name, name}, 2000);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_TRUE(lines[0].startsWith(QStringLiteral("Subject")));
  EXPECT_TRUE(lines[0].endsWith(QStringLiteral("03.c3d")));
  EXPECT_TRUE(lines[0].contains(QChar(0x2026)));
}

TEST(TrialNames, TooManyForTwoLinesAreCounted) {
  const std::vector<std::string> names(100, "Subject 0815 walking at a speed of their own.c3d");
  const auto lines = LinesOf(names, 4000);
  ASSERT_THAT(lines, SizeIs(2));
  EXPECT_TRUE(lines[1].contains(QStringLiteral("  + 8")));
}

TEST(TrialNames, OfNoFilesAreEmpty) { EXPECT_THAT(LinesOf({}, 4000), ElementsAre(QString())); }

TEST(Numbers, TicksAreTheMultiplesWithinBothEnds) {
  EXPECT_THAT(plot::TicksOf(-1, 1, 0.5), ElementsAre(-1, -0.5, 0, 0.5, 1));
  EXPECT_THAT(plot::TicksOf(-7, 16, 5), ElementsAre(-5, 0, 5, 10, 15));
  EXPECT_THAT(plot::TicksOf(0, 1, 0), IsEmpty());
  EXPECT_THAT(plot::TicksOf(0, 1e9, 1), IsEmpty());
}

TEST(Numbers, TicksEndAlsoWhereOneMoreThanANumberIsThatNumber) {
  EXPECT_THAT(plot::TicksOf(1e18, 1e18 + 1024, 128), SizeIs(9));
}

TEST(Numbers, ThinnedTicksAreOneTwoOrFiveTimesAPowerOfTenTicks) {
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(-20, 80, 20), 20);
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(0, 25, 1), 1);
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(0, 26, 1), 2);
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(-1980, 20, 20), 100);
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(0, 71000, 0.25), 5000);
  EXPECT_DOUBLE_EQ(plot::ThinnedTick(0, 1, 0), 0);
}

TEST(Numbers, HaveTheDecimalsOfTheirTicksAndATrueMinusSign) {
  EXPECT_EQ(plot::DecimalsOf(15), 0);
  EXPECT_EQ(plot::DecimalsOf(0.5), 1);
  EXPECT_EQ(plot::DecimalsOf(0.25), 2);
  EXPECT_EQ(plot::NumberText(-0.25, 2), QStringLiteral("−0.25"));
  EXPECT_EQ(plot::NumberText(-0.001, 2), QStringLiteral("0.00"));
}

TEST(Numbers, StepIsOneTwoOrFiveTimesAPowerOfTen) {
  EXPECT_DOUBLE_EQ(plot::StepFor(20, 5), 5);
  EXPECT_DOUBLE_EQ(plot::StepFor(0.9, 5), 0.2);
  EXPECT_DOUBLE_EQ(plot::StepFor(100, 10), 10);
}

}  // namespace
