// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cmath>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "reports/ListingReport.h"
#include "tests/GaitTrials.h"

namespace {

using namespace modVantrel;
using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using sample::Storage;
using sample::TrialBuilder;
using tests::ErrorNumberOf;
using tests::OpenedTrial;

using tests::kInputPastEndOfFile;
using tests::kSubscriptOutOfRange;

using Listing = ReportResult (*)(const FileState&, std::string_view, ReportOutput&);

constexpr const char* kPointHeading =
    "All point data for label (Number, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}, Axial{Z} "
    "for angles OR side-to-side{X or Y}, forward-backward{X or Y}, vertical for points{Z}]):\n";
constexpr const char* kPointHeadingWithEvents =
    "All point data for label (PIG Event, Number, Time, X, Y, Z  [Sagittal{X or Y}, Coronal{X or "
    "Y}, Axial{Z} for angles OR side-to-side{X or Y}, forward-backward{X or Y}, vertical for "
    "points{Z}]):\n";
constexpr const char* kAnalogHeading = "All analog data for label (Frame, Slice, Time, Value):\n";

TrialBuilder OnePoint(std::int16_t first, std::int16_t last) {
  TrialBuilder builder;
  builder.StoredAs(Storage::Single).Frames(first, last).Rate(100);
  builder.AddPoint("LTOE", [](std::int32_t frame) {
    return std::array{123.4567F, -12.0F * static_cast<float>(frame), 987.6543F};
  });
  return builder;
}

TrialBuilder OneChannel(std::int16_t frames, std::int16_t samples) {
  TrialBuilder builder = OnePoint(1, frames);
  builder.SamplesPerFrame(samples).AddAnalog(
      "Fz", "Force", [](std::int32_t sample) { return -0.5F * static_cast<float>(sample); });
  return builder;
}

std::string Text(Listing listing, const FileState& state, const std::string& label) {
  return tests::TextOf(
      [&](ReportOutput& output) { EXPECT_FALSE(listing(state, label, output).IsRejected()); });
}

std::vector<std::string> LinesOf(Listing listing, const FileState& state,
                                 const std::string& label) {
  return tests::LinesOf(Text(listing, state, label));
}

void AddEventOnFrame(FileState& state, const EventFrameRecord& event) {
  state.StrideEventFrames.Append(event);
  state.StrideEventFrameCount = state.StrideEventFrames.Count();
}

TEST(PointLabels, AreNumberedAndEndWithoutAnEmptyLine) {
  TrialBuilder builder = OnePoint(1, 2);
  builder.AddPoint("LHEE", tests::Standing(0, 0, 0));
  OpenedTrial trial(builder);
  EXPECT_EQ(tests::TextOf([&](auto& output) { reports::ShowPointLabels(trial.State(), output); }),
            "001  LTOE\n002  LHEE\n");
}

TEST(PointLabels, LabelThatTheFileDoesNotNameIsEmpty) {
  TrialBuilder builder = OnePoint(1, 2);
  builder.AddPoint("LHEE", tests::Standing(0, 0, 0))
      .SetParam("POINT", sample::TextListParam("LABELS", {"LTOE"}));
  OpenedTrial trial(builder);
  EXPECT_EQ(tests::TextOf([&](auto& output) { reports::ShowPointLabels(trial.State(), output); }),
            "001  LTOE\n002  \n");
}

TEST(PointListing, PrintsEachFrame) {
  OpenedTrial trial(OnePoint(1, 2));
  EXPECT_EQ(Text(reports::ShowPointData, trial.State(), "LTOE"),
            "Label: 'LTOE'\n" + std::string(kPointHeading) +
                "  001  00.00000  0123.4567  -0012.0000  0987.6543\n"
                "  002  00.01000  0123.4567  -0024.0000  0987.6543\n"
                "\n");
}

TEST(PointListing, FrameNumbersAreThoseOfTheFile) {
  OpenedTrial trial(OnePoint(1000, 1001));
  const auto lines = LinesOf(reports::ShowPointData, trial.State(), "LTOE");
  EXPECT_EQ(lines[2].substr(0, 16), "  1000  09.99000");
  EXPECT_EQ(lines[3].substr(0, 16), "  1001  10.00000");
}

TEST(PointListing, NegativeFrameNumberKeepsItsSign) {
  OpenedTrial trial(OnePoint(-2, 0));
  const auto lines = LinesOf(reports::ShowPointData, trial.State(), "LTOE");
  EXPECT_EQ(lines[2].substr(0, 17), "  -002  -00.03000");
  EXPECT_EQ(lines[4].substr(0, 16), "  000  -00.01000");
}

TEST(PointListing, NamesTheLabelAsItWasTypedWithoutItsBlanks) {
  OpenedTrial trial(OnePoint(1, 1));
  EXPECT_TRUE(
      Text(reports::ShowPointData, trial.State(), "  ltoe ").starts_with("Label: 'ltoe'\n"));
}

TEST(PointListing, MissingSampleAndLargeValuesPrint) {
  TrialBuilder builder = OnePoint(1, 1);
  builder.AddPoint("A", [](std::int32_t) {
    return std::array{std::nanf(""), 123456.75F, -0.00001F};
  });
  OpenedTrial trial(builder);
  EXPECT_EQ(LinesOf(reports::ShowPointData, trial.State(), "A")[2],
            "  001  00.00000  NaN  123456.7500  -0000.0000");
}

TEST(PointListingWithEvents, TagsStandInFrontOfTheirFrames) {
  OpenedTrial trial(OnePoint(1, 3));
  AddEventOnFrame(trial.State(), {2, GaitSide::Left, GaitEventType::FootStrike});
  AddEventOnFrame(trial.State(), {3, GaitSide::Right, GaitEventType::FootOff});
  EXPECT_EQ(Text(reports::ShowPointDataWithEvents, trial.State(), "LTOE"),
            "Label: 'LTOE'\n" + std::string(kPointHeadingWithEvents) +
                "                   001  00.00000  0123.4567  -0012.0000  0987.6543\n"
                "Left  Foot Strike  002  00.01000  0123.4567  -0024.0000  0987.6543\n"
                "Right Foot Off     003  00.02000  0123.4567  -0036.0000  0987.6543\n"
                "\n");
}

TEST(PointListingWithEvents, EventWithoutASideCarriesTheTagOfTheFrameBefore) {
  OpenedTrial trial(OnePoint(1, 3));
  AddEventOnFrame(trial.State(), {1, GaitSide::Left, GaitEventType::FootOff});
  AddEventOnFrame(trial.State(), {2, GaitSide::None, GaitEventType::FootStrike});
  const auto lines = LinesOf(reports::ShowPointDataWithEvents, trial.State(), "LTOE");
  EXPECT_TRUE(lines[3].starts_with("Left  Foot Off   Foot Strike  002")) << lines[3];
  EXPECT_TRUE(lines[4].starts_with("                   003")) << lines[4];
}

TEST(AnalogListing, NumbersTheSamplesOfTheWholeListing) {
  OpenedTrial trial(OneChannel(3, 10));
  const auto lines = LinesOf(reports::ShowAnalogData, trial.State(), "fz");
  ASSERT_EQ(lines.size(), 2U + 30U + 1U);
  EXPECT_EQ(lines[0], "Label: 'fz'");
  EXPECT_EQ(lines[1] + "\n", kAnalogHeading);
  EXPECT_EQ(lines[2], "  001  0001  00.00000  -0.50000000");
  EXPECT_EQ(lines[11], "  001  0010  00.00000  -5.00000000");
  EXPECT_EQ(lines[12], "  002  0011  00.01000  -5.50000000");
  EXPECT_EQ(lines[31], "  003  0030  00.02000  -15.00000000");
  EXPECT_EQ(lines[32], "");
}

TEST(AnalogListing, SampleNumberGrowsBeyondFourDigits) {
  OpenedTrial trial(OneChannel(101, 100));
  const auto lines = LinesOf(reports::ShowAnalogData, trial.State(), "Fz");
  EXPECT_EQ(lines[10000].substr(0, 13), "  100  9999  ");
  EXPECT_EQ(lines[10002].substr(0, 14), "  101  10001  ");
}

TEST(AnalogListing, LabelAndTagLinesWithEvents) {
  OpenedTrial trial(OneChannel(2, 2));
  AddEventOnFrame(trial.State(), {2, GaitSide::Right, GaitEventType::FootStrike});
  EXPECT_EQ(Text(reports::ShowAnalogDataWithEvents, trial.State(), " Fz"),
            "Label: 'Fz'\n" + std::string(kAnalogHeading) +
                "                   001  0001  00.00000  -0.50000000\n"
                "                   001  0002  00.00000  -1.00000000\n"
                "Right Foot Strike  002  0003  00.01000  -1.50000000\n"
                "                   002  0004  00.01000  -2.00000000\n"
                "\n");
}

TEST(AnalogListing, ChannelAboveAFractionalCountIsAnIndexError) {
  // 7 values in 4 samples: 1.75 channels, so 2 labels but data of channel 1 only.
  TrialBuilder builder = OnePoint(1, 3);
  for (int i = 1; i <= 7; ++i) {
    builder.AddAnalog(tests::Numbered("C", i), "", [](std::int32_t) { return 0.0F; });
  }
  OpenedTrial trial(builder.Build().SetInteger(19, 4));
  modAllPurpose::TextReport output;
  EXPECT_EQ(ErrorNumberOf([&] { (void)reports::ShowAnalogData(trial.State(), "C2", output); }),
            kSubscriptOutOfRange);
}

struct Request {
  Listing Report;
  std::string_view Label;
};

struct Refusal {
  Request Asked;
  std::string_view Text;
};

TEST(Listings, UnknownLabelIsRejectedBeforeThePaneIsCleared) {
  OpenedTrial trial(OneChannel(2, 2));
  const std::vector<Refusal> refusals = {
      {{reports::ShowPointData, "LHEE"}, "point label not found"},
      {{reports::ShowPointData, "Fz"}, "point label not found"},
      {{reports::ShowPointData, ""}, "point label not found"},
      {{reports::ShowPointDataWithEvents, "LHEE"}, "point label not found"},
      {{reports::ShowAnalogData, "LTOE"}, "analog label not found"},
      {{reports::ShowAnalogData, ""}, "analog label not found"},
      {{reports::ShowAnalogDataWithEvents, "Fx"}, "analog label not found"}};
  for (const Refusal& refusal : refusals) {
    modAllPurpose::TextReport output;
    EXPECT_EQ(refusal.Asked.Report(trial.State(), refusal.Asked.Label, output).Text(),
              refusal.Text);
    EXPECT_FALSE(output.Begun());
    EXPECT_EQ(output.Text(), "");
  }
}

TEST(Listings, EmptyLabelIsListedWhereOneIsStored) {
  TrialBuilder builder = OnePoint(1, 1);
  builder.SetParam("POINT", sample::TextListParam("LABELS", {"  "}));
  OpenedTrial trial(builder);
  EXPECT_TRUE(Text(reports::ShowPointData, trial.State(), "").starts_with("Label: ''\n"));
}

TEST(Listings, EventOutsideTheFramesIsAnIndexError) {
  OpenedTrial trial(OneChannel(2, 2));
  AddEventOnFrame(trial.State(), {3, GaitSide::Right, GaitEventType::FootStrike});
  for (const Request& request : {Request{reports::ShowPointDataWithEvents, "LTOE"},
                                 Request{reports::ShowAnalogDataWithEvents, "Fz"}}) {
    modAllPurpose::TextReport output;
    EXPECT_EQ(ErrorNumberOf([&] { (void)request.Report(trial.State(), request.Label, output); }),
              kSubscriptOutOfRange);
    EXPECT_TRUE(output.Begun()) << "the pane is cleared before the data are read";
    EXPECT_EQ(output.Text(), "");
  }
}

TEST(Listings, CutTrialIsAnError) {
  const sample::Trial whole = OneChannel(2, 2).Build();
  sample::Trial cut = whole;
  OpenedTrial trial(cut.TruncateTo(whole.Size() - 30));
  for (const Request& request :
       {Request{reports::ShowPointData, "LTOE"}, Request{reports::ShowAnalogData, "Fz"}}) {
    modAllPurpose::TextReport output;
    EXPECT_EQ(ErrorNumberOf([&] { (void)request.Report(trial.State(), request.Label, output); }),
              kInputPastEndOfFile);
  }
}

}  // namespace
