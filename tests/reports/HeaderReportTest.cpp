// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/HeaderReport.h"
#include "tests/TestTrials.h"

namespace {

using sample::Trial;
using sample::TrialBuilder;
using tests::Origin;
using tests::Silence;

// 60 frames of two points and two channels.
TrialBuilder SixtyFrames() {
  return TrialBuilder()
      .Frames(5, 64)
      .Rate(120)
      .Scale(0.5F)
      .AddPoint("LTOE", Origin)
      .AddPoint("RTOE", Origin)
      .AddAnalog("FZ1", "", Silence)
      .AddAnalog("FZ2", "", Silence)
      .SamplesPerFrame(10);
}

std::string Repeated(const std::string& piece, int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += piece;
  return text;
}

class HeaderReportTest : public testing::Test {
 protected:
  void Given(const Trial& trial) {
    ASSERT_EQ(opener_.Open(trial), modVantrel::OpenResult::Success);
  }
  void Given(const TrialBuilder& builder) { Given(builder.Build()); }

  std::string Report() {
    return tests::TextOf(
        [this](auto& output) { reports::ShowHeaderInfo(opener_.State(), output); });
  }
  std::string ParameterHeader() {
    return tests::TextOf(
        [this](auto& output) { reports::ShowParameterHeader(opener_.State(), output); });
  }

  // The one line that starts with `label`.
  std::string Line(const std::string& label) {
    std::string found = "no line " + label;
    for (const std::string& line : tests::LinesOf(Report())) {
      if (line.starts_with(label)) found = line;
    }
    return found;
  }

  tests::TrialOpener opener_;
};

// The lines of the header's own fields, of a trial whose frames begin at that block.
std::string StoredLines(std::int32_t dataBlock) {
  return "ParamBlockPointer:                 2\n"
         "FileID:                            80\n"
         "PointLabelCount:                   2\n"
         "AnalogValuesPerFrame:              20\n"
         "FirstPointFrameNumber:             5\n"
         "LastPointFrameNumber:              64\n"
         "MaxInterpolationGapAllowed:        10\n"
         "ScaleFactor:                       0.5\n"
         "FirstMarkerAndAnalogBlockPointer:  " +
         std::to_string(dataBlock) +
         "\n"
         "AnalogSamplesPerChannel:           10\n"
         "PointFrameRate:                    120\n"
         "EventDataFlag:                     12345\n"
         "(The following event information is the old style information, and not necessarily the "
         "PIG information.)\n"
         "TimedEventsCount:                  1\n"
         "Event numbers, times, display switches, and labels\n"
         "  01  0.5000  1  'RHS'\n"
         "Reserved1: " +
         Repeated(" 0", 274) +
         "\nReserved2:  0 0\nReserved3:  0 0\nReserved4: " + Repeated(" 0", 44) + "\n";
}

// The lines of what is derived from them.
std::string DerivedLines(std::int32_t dataPosition) {
  return "  --Extra calculated stuff--\n"
         "AnalogChannelsCount:               2\n"
         "AnalogFrameRate:                   1200\n"
         "SeekPtrForFirstC3dParam:           517\n"
         "SeekPtrForFirstFrameData:          " +
         std::to_string(dataPosition) +
         "\n"
         "ProcessorType (0=Intel IEEE):      84\n"
         "DataStoredAsIntegerOrSingle:       1\n"
         "PointFrameCount:                   60\n"
         "ElapsedTimeOfWalk:                 0.4916667\n"
         "WalkStartTime:                     0.03333334\n"
         "WalkEndTime:                       0.525\n"
         "TimeBetweenFrames:                 0.0083333338\n"
         "\n";
}

TEST_F(HeaderReportTest, PrintsEveryLineOfAnIntelTrialInItsPlace) {
  const Trial trial = SixtyFrames().AddHeaderEvent("RHS", 0.5F, 1).Build();
  Given(trial);
  const std::int32_t dataPosition = trial.FrameDataPosition();
  EXPECT_EQ(Report(), "OpenC3dFileSpec: " + opener_.File() + "\n\n" +
                          StoredLines((dataPosition - 1) / 512 + 1) + "\n" +
                          DerivedLines(dataPosition));
}

TEST_F(HeaderReportTest, ADecTrialDiffersInProcessorOnly) {
  Given(SixtyFrames());
  std::vector<std::string> expected = tests::LinesOf(Report());
  std::ranges::replace(expected, std::string("ProcessorType (0=Intel IEEE):      84"),
                       std::string("ProcessorType (0=Intel IEEE):      85"));
  Given(SixtyFrames().Processor(modVantrel::kProcessorDec));
  EXPECT_EQ(tests::LinesOf(Report()), expected);
}

TEST_F(HeaderReportTest, TheFloatFormOfTheFrameTimeHasSevenDigitsAndItsLineTenDecimals) {
  Given(TrialBuilder().Rate(120).Frames(2, 3));
  EXPECT_EQ(Line("WalkStartTime:"), "WalkStartTime:                     0.008333334");
  EXPECT_EQ(Line("TimeBetweenFrames:"), "TimeBetweenFrames:                 0.0083333338");
}

TEST_F(HeaderReportTest, AFrameTimeOfOneSecondKeepsOneDecimal) {
  Given(TrialBuilder().Rate(1));
  EXPECT_EQ(Line("TimeBetweenFrames:"), "TimeBetweenFrames:                 1.0");
}

TEST_F(HeaderReportTest, TheScaleIsPrintedWithoutItsSign) {
  Given(TrialBuilder().StoredAs(sample::Storage::Single).Scale(0.25F));
  EXPECT_EQ(Line("ScaleFactor:"), "ScaleFactor:                       0.25");
  EXPECT_EQ(Line("DataStoredAs"), "DataStoredAsIntegerOrSingle:       2");
}

TEST_F(HeaderReportTest, TheRateInForceIsPrinted) {
  Given(TrialBuilder().Rate(0).SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 120)));
  EXPECT_EQ(Line("PointFrameRate:"), "PointFrameRate:                    120");
  EXPECT_EQ(Line("AnalogFrameRate:"), "AnalogFrameRate:                   0");
}

TEST_F(HeaderReportTest, ADataBlockAbove32767PrintsSignedAndSeeksUnsigned) {
  Given(TrialBuilder().Build().SetInteger(tests::header::kFirstMarkerAndAnalogBlockPointer,
                                          static_cast<std::int16_t>(40000)));
  EXPECT_EQ(Line("FirstMarker"), "FirstMarkerAndAnalogBlockPointer:  -25536");
  EXPECT_EQ(Line("SeekPtrForFirstFrameData:"), "SeekPtrForFirstFrameData:          20479489");
}

TEST_F(HeaderReportTest, AFractionOfAChannelIsPrintedAsSuch) {
  Given(TrialBuilder()
            .Build()
            .SetInteger(tests::header::kAnalogValuesPerFrame, 10)
            .SetInteger(tests::header::kAnalogSamplesPerChannel, 4));
  EXPECT_EQ(Line("AnalogChannelsCount:"), "AnalogChannelsCount:               2.5");
}

TEST_F(HeaderReportTest, AnEventCountOf0OrLessPrintsNoEvent) {
  for (const std::int16_t count : std::vector<std::int16_t>{0, -1, -32768}) {
    Given(TrialBuilder()
              .AddHeaderEvent("RHS", 1, 1)
              .Build()
              .SetInteger(tests::header::kTimedEventsCount, count));
    const std::string report = Report();
    EXPECT_NE(report.find("TimedEventsCount:                  " + std::to_string(count) +
                          "\nEvent numbers, times, display switches, and labels\nReserved1: "),
              std::string::npos);
  }
}

TEST_F(HeaderReportTest, EventsArePrintedInTheirForm) {
  Given(TrialBuilder()
            .AddHeaderEvent(" A ", 12345.67891F, 255)
            .AddHeaderEvent("\xC4\xD6\xDC\xDF", -0.00004F, 0)
            .AddHeaderEvent("", 0.03125F, 2));
  const std::vector<std::string> lines = tests::LinesOf(Report());
  ASSERT_GT(lines.size(), 20U);
  EXPECT_EQ(lines[17], "  01  12345.6787  255  'A'");
  EXPECT_EQ(lines[18], "  02  -0.0000  0  '\u00C4\u00D6\u00DC\u00DF'");
  EXPECT_EQ(lines[19], "  03  0.0313  2  ''");
}

TEST_F(HeaderReportTest, EventLabelsStayAsStored) {
  Given(TrialBuilder().AddHeaderEvent("A", 0, 0));
  Report();
  EXPECT_EQ(opener_.State().Header.EventLabels[1], "A   ");
}

TEST_F(HeaderReportTest, EighteenEventsArePrinted) {
  TrialBuilder builder;
  for (int i = 0; i < 18; ++i) builder.AddHeaderEvent("E", 1, 1);
  Given(builder);
  EXPECT_EQ(Line("  18"), "  18  1.0000  1  'E'");
  EXPECT_EQ(Line("Reserved2:"), "Reserved2:  0 0");
}

TEST_F(HeaderReportTest, AnEventCountAbove18IsError9BehindTheEighteenthLine) {
  for (const std::int16_t count : std::vector<std::int16_t>{19, 32767}) {
    Given(TrialBuilder().Build().SetInteger(tests::header::kTimedEventsCount, count));
    modAllPurpose::TextReport output;
    EXPECT_EQ(tests::ErrorNumberOf([&] { reports::ShowHeaderInfo(opener_.State(), output); }), 9);
    const std::vector<std::string> lines = tests::LinesOf(output.Text());
    EXPECT_EQ(lines.size(), 17U + 18U);
    EXPECT_EQ(lines.back(), "  18  0.0000  0  '" + std::string(4, '\0') + "'");
  }
}

TEST_F(HeaderReportTest, AReservedAreaOfBlanksPrints20ForEach) {
  Trial trial = TrialBuilder().Build();
  for (std::int32_t i = 0; i < 44; ++i) trial.SetByte(tests::header::kReserved4 + i, ' ');
  Given(trial);
  EXPECT_EQ(Line("Reserved4:"), "Reserved4: " + Repeated(" 20", 44));
}

TEST(HexDump, IsUpperCaseWithoutLeadingZeros) {
  const auto dump = [](const std::vector<std::byte>& bytes) { return reports::HexDump(bytes); };
  EXPECT_EQ(dump({}), "");
  EXPECT_EQ(dump({std::byte{'A'}, std::byte{'B'}}), " 41 42");
  EXPECT_EQ(dump({std::byte{0}, std::byte{' '}, std::byte{0xA}, std::byte{0xFF}}), " 0 20 A FF");
}

TEST_F(HeaderReportTest, TheParameterHeaderHasFourLines) {
  Given(TrialBuilder());
  EXPECT_EQ(ParameterHeader(),
            "ParamBlockPointer:  1\n"
            "RecordID:           80\n"
            "ParamBlockCount:    1\n"
            "ProcessorType:      84\n");
}

TEST_F(HeaderReportTest, TheParameterHeaderIsReadAfresh) {
  const Trial trial = TrialBuilder().ParamBlock(3).Processor(modVantrel::kProcessorDec).Build();
  Given(trial);
  Trial(trial).SetByte(2 * 512 + 1, 255).SetByte(2 * 512 + 4, 200).WriteTo(opener_.File());
  const std::vector<std::string> lines = tests::LinesOf(ParameterHeader());
  EXPECT_EQ(lines.front(), "ParamBlockPointer:  255");
  EXPECT_EQ(lines.back(), "ProcessorType:      200");
}

TEST_F(HeaderReportTest, AParameterHeaderThatIsGoneIsError62BeforeTheReportBegins) {
  const Trial trial = TrialBuilder().Build();
  Given(trial);
  Trial(trial).TruncateTo(514).WriteTo(opener_.File());
  modAllPurpose::TextReport output;
  EXPECT_EQ(tests::ErrorNumberOf([&] { reports::ShowParameterHeader(opener_.State(), output); }),
            62);
  EXPECT_FALSE(output.Begun());
  EXPECT_EQ(output.Text(), "");
}

}  // namespace
