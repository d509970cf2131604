// SPDX-License-Identifier: GPL-3.0-or-later

#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "c3d/MacSideFiles.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using tests::Entries;
using tests::ErrorNumberOf;
using tests::TemporaryFolder;

using tests::kFileNotFound;
using tests::kSubscriptOutOfRange;

// A data file of that text, open and read.
class ReadDataFile {
 public:
  explicit ReadDataFile(const std::string& text) {
    const auto file = folder_ / "walk.data";
    std::ofstream(file, std::ios::binary) << text;
    data_.SideFileNumber.Open(file.string());
    ReadMacDataFile(data_);
  }

  MacDataFile& operator*() { return data_; }
  MacDataFile* operator->() { return &data_; }

 private:
  TemporaryFolder folder_;
  MacDataFile data_;
};

MacEventLines EventLinesOf(const std::string& text) {
  const TemporaryFolder folder;
  FileState state;
  state.EvtFileSpec = (folder / "walk.evt").string();
  std::ofstream(state.EvtFileSpec, std::ios::binary) << text;
  return ReadMacEventLines(state);
}

// A table with a column on each field but the first, a second row, and rows of the frames -1 to 1.
constexpr const char* kTable =
    "Walk of a patient\r\n"
    "[Data]\r\n"
    "\tFrame\t\tLKNEE\r\n"
    "mm\tnone\r\n"
    "-1\t5\r\n"
    "0\t6\r\n"
    "1\t7\r\n"
    "2\t8\r\n";

TEST(SideFilesOf, ReplaceTheLastFourCharacters) {
  EXPECT_EQ(SideFilesOf("/gait/walk03.c3d").Evt, "/gait/walk03.evt");
  EXPECT_EQ(SideFilesOf("/gait/walk03.C3D").Data, "/gait/walk03.data");
}

TEST(TabFields, AreTakenOffTheLineOneByOne) {
  MacDataFile data;
  data.CurrentLine = "a\t\tb";
  EXPECT_EQ(NextTabField(data), "a");
  EXPECT_EQ(data.CurrentLine, "\tb");
  EXPECT_EQ(NextTabField(data), "");
  EXPECT_EQ(NextTabField(data), "b");
  EXPECT_EQ(data.CurrentLine, "");
  EXPECT_EQ(NextTabField(data), "") << "nothing is left";
}

TEST(DataLines, AreCountedAlsoBehindTheEndOfTheFile) {
  ReadDataFile file("one\ntwo\n");
  RewindDataFile(*file);
  EXPECT_EQ(file->LineCount, 0);
  EXPECT_EQ(file->CurrentLine, "");
  ReadNextDataLine(*file);
  EXPECT_EQ(file->CurrentLine, "one");
  ReadNextDataLine(*file);
  ReadNextDataLine(*file);
  EXPECT_EQ(file->CurrentLine, "");
  EXPECT_EQ(file->LineCount, 3);
}

TEST(MacDataFile, ColumnPositionsCountEmptyHeadings) {
  ReadDataFile file(kTable);
  ASSERT_EQ(file->Columns.Count(), 2);
  EXPECT_EQ(file->Columns[1].Name, "Frame");
  EXPECT_EQ(file->Columns[1].Column, 2) << "the first field is empty";
  EXPECT_EQ(file->Columns[2].Name, "LKNEE");
  EXPECT_EQ(file->Columns[2].Column, 4);
}

TEST(MacDataFile, SecondRowHasTwelveFieldsMoreThanTheLastColumn) {
  ReadDataFile file(kTable);
  ASSERT_EQ(file->SecondRow.Count(), 4 + 12);
  EXPECT_EQ(file->SecondRow[1], "mm");
  EXPECT_EQ(file->SecondRow[2], "none");
  EXPECT_EQ(file->SecondRow[3], "");
  EXPECT_EQ(file->SecondRow[16], "");
}

TEST(MacDataFile, FirstFrameLineIsThatOfTheRowOfFrameOne) {
  EXPECT_EQ(ReadDataFile(kTable)->FirstFrameLine, 7);
}

TEST(MacDataFile, RowOfFrameOneThatIsTheLastLineIsNotFound) {
  EXPECT_EQ(ReadDataFile("[Data]\nFrame\nmm\n0\t1\n1\t2\n")->FirstFrameLine, 0);
  EXPECT_EQ(ReadDataFile("[Data]\nFrame\nmm\n0\t1\n1\t2\n\n")->FirstFrameLine, 5);
}

TEST(MacDataFile, FirstFieldOfARowIsReadAsALeadingNumber) {
  EXPECT_EQ(ReadDataFile("[Data]\nFrame\nmm\nx1\t\n 1.0 s\t\n3\n")->FirstFrameLine, 5);
  EXPECT_EQ(ReadDataFile("[Data]\nFrame\nmm\n1.5\t\n10\t\n3\n")->FirstFrameLine, 0);
}

TEST(MacDataFile, WithoutItsDataLineThereAreNoColumns) {
  for (const std::string text :
       {"", "Frame\tTime\n1\t2\n", "[data]\nFrame\n", " [Data]\nFrame\n", "[Data] \nFrame\n"}) {
    ReadDataFile file(text);
    EXPECT_TRUE(file->Columns.IsEmpty()) << text;
    EXPECT_TRUE(file->SecondRow.IsEmpty());
    EXPECT_EQ(file->FirstFrameLine, 0);
  }
}

TEST(MacDataFile, DataLineThatIsTheVeryLastIsNotFound) {
  EXPECT_TRUE(ReadDataFile("Frame\n[Data]\n")->Columns.IsEmpty());
  EXPECT_TRUE(ReadDataFile("Frame\n[Data]")->Columns.IsEmpty());
}

TEST(MacDataFile, EmptyHeadingsGiveNoColumnsAndNoSecondRow) {
  ReadDataFile file("[Data]\n\t\t\nmm\tmm\n0\n1\n2\n");
  EXPECT_TRUE(file->Columns.IsEmpty());
  EXPECT_TRUE(file->SecondRow.IsEmpty());
  EXPECT_EQ(file->FirstFrameLine, 5) << "the rows are looked through all the same";
}

TEST(MacDataFile, HeadingsBehindTheFiveHundredthAreIgnored) {
  std::string headings;
  for (int i = 1; i <= 510; ++i) headings += tests::Numbered(i > 1 ? "\tC" : "C", i);
  ReadDataFile file("[Data]\n" + headings + "\nmm\n1\n2\n");
  ASSERT_EQ(file->Columns.Count(), 500);
  EXPECT_EQ(file->Columns[500].Name, "C500");
  EXPECT_EQ(file->SecondRow.Count(), 512);
}

TEST(MacDataFile, IsForgottenWhenTheTrialIsClosed) {
  FileState state;
  state.MacData.Columns.Append({"Frame", 1});
  state.MacData.FirstFrameLine = 4;
  CloseC3dFile(state);
  EXPECT_TRUE(state.MacData.Columns.IsEmpty());
  EXPECT_EQ(state.MacData.FirstFrameLine, 0);
  EXPECT_FALSE(state.MacData.SideFileNumber.IsOpen());
}

TEST(MacEventLines, AreFoundByTheirCode) {
  const MacEventLines lines =
      EventLinesOf("\"RTO\" 10 55\n\"RHS\" 20\r\nText\n\"LTO\" 30\n\"LHS\" 40");
  EXPECT_EQ(lines.RightToeOff, "\"RTO\" 10 55");
  EXPECT_EQ(lines.RightHeelStrike, "\"RHS\" 20");
  EXPECT_EQ(lines.LeftToeOff, "\"LTO\" 30");
  EXPECT_EQ(lines.LeftHeelStrike, "\"LHS\" 40");
}

TEST(MacEventLines, LowerCaseAndBlanksAroundTheLineAreAccepted) {
  EXPECT_EQ(EventLinesOf("   \"rhs\" 12 34  \n").RightHeelStrike, "\"RHS\" 12 34");
}

TEST(MacEventLines, LaterLineOfACodeReplacesTheEarlierOne) {
  EXPECT_EQ(EventLinesOf("\"RTO\" 1\n\"RTO\" 2\n").RightToeOff, "\"RTO\" 2");
}

TEST(MacEventLines, CodeWithoutALineIsEmpty) {
  const MacEventLines lines = EventLinesOf("RTO 10\n\"RTX\" 10\n\"LHS\"7\n");
  EXPECT_EQ(lines.RightToeOff, "");
  EXPECT_EQ(lines.RightHeelStrike, "");
  EXPECT_EQ(lines.LeftToeOff, "");
  EXPECT_EQ(lines.LeftHeelStrike, "\"LHS\"7");
}

TEST(MacEventLines, MissingEventFileIsAnError) {
  const tests::TemporaryFolder folder;
  FileState state;
  state.EvtFileSpec = (folder / "walk.evt").string();
  EXPECT_EQ(ErrorNumberOf([&] { ReadMacEventLines(state); }), kFileNotFound);
}

TEST(ParseFrameList, CountsFramesFromOne) {
  EXPECT_EQ(Entries(ParseFrameList("\"RTO\" 10 55 101")), (std::vector{11, 56, 102}));
}

TEST(ParseFrameList, LineOfACodeAloneOrNothingIsEmpty) {
  EXPECT_TRUE(ParseFrameList("\"RTO\"").IsEmpty());
  EXPECT_TRUE(ParseFrameList("").IsEmpty());
}

TEST(ParseFrameList, TwoBlanksInARowGiveAFrameOne) {
  EXPECT_EQ(Entries(ParseFrameList("\"RTO\" 10  55")), (std::vector{11, 1, 56}));
}

TEST(ParseFrameList, WhatIsNoNumberGivesAFrameOne) {
  EXPECT_EQ(Entries(ParseFrameList("\"RTO\" abc 7x")), (std::vector{1, 8}));
}

TEST(ParseFrameList, HalvesRoundToTheEvenNeighbour) {
  EXPECT_EQ(Entries(ParseFrameList("\"RTO\" 1.5 2.5 -3.5")), (std::vector{2, 4, -2}));
}

TEST(ParseFrameList, TwentyFramesFitAndTwentyOneAreAnIndexError) {
  std::string line = "\"RTO\"";
  for (int i = 1; i <= 20; ++i) line += tests::Numbered(" ", i);
  EXPECT_EQ(ParseFrameList(line).Count(), 20);
  EXPECT_EQ(ErrorNumberOf([&] { ParseFrameList(line + " 21"); }), kSubscriptOutOfRange);
}

TEST(FrameToTime, IsMovedIntoTheWalk) {
  FileState state;
  state.TimeBetweenFrames = 0.01F;
  state.WalkStartTime = 0.5F;
  state.WalkEndTime = 2.0F;
  EXPECT_EQ(FrameToTime(state, 101), static_cast<float>(double{0.01F} * 100));
  EXPECT_EQ(FrameToTime(state, 2), 0.5F);
  EXPECT_EQ(FrameToTime(state, -7), 0.5F);
  EXPECT_EQ(FrameToTime(state, 5000), 2.0F);
}

}  // namespace
