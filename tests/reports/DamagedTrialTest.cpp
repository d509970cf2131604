// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/NavigationTree.h"
#include "reports/ParameterReport.h"
#include "tests/TestTrials.h"

// Every report on trials that are cut short, very large or stored in another form.
namespace {

using modAllPurpose::ReportOutput;
using modVantrel::FileState;
using modVantrel::OpenResult;
using sample::Storage;
using sample::Trial;
using sample::TrialBuilder;

std::vector<std::function<void(const FileState&, ReportOutput&)>> AllReports() {
  return {reports::ShowHeaderInfo,
          reports::ShowParameterHeader,
          reports::ShowAllGroups,
          reports::ShowAllGroupsAndAllParams,
          reports::ShowPointLabels,
          reports::ShowTree,
          [](const FileState& state, ReportOutput& output) {
            static_cast<void>(reports::ShowMatchingGroupAndAllParams(state, "ANALOG", output));
          },
          [](const FileState& state, ReportOutput& output) {
            static_cast<void>(
                reports::ShowMatchingGroupAndMatchingParam(state, "ANALOG", "UNITS", output));
          }};
}

// A small trial with a record of every kind and both ends of the section in use.
TrialBuilder SmallTrial(std::uint8_t processor) {
  return TrialBuilder()
      .Processor(processor)
      .Frames(1, 3)
      .AddAnalog("FZ1", "force", [](std::int32_t /*sample*/) { return 1.0F; })
      .AddEvent("Left", "Foot Strike", 0.1F)
      .AddHeaderEvent("RHS", 0.1F, 1)
      .SetParam("TRIAL", sample::ByteParam("FLAG", 1))
      .SetParam("TRIAL", sample::TextParam("NAME", "walk"))
      .End(sample::SectionEnd::ZeroId);
}

class DamagedTrial : public testing::TestWithParam<std::uint8_t> {
 protected:
  // Opens `trial` with a fresh state and runs every report on it. True where the open or a report
  // failed in one of the ways that a damaged file may fail: a result code or a run-time error.
  bool Fails(const Trial& trial) const {
    tests::WriteAnew(trial, file_);
    FileState state;
    auto opened = OpenResult::FileNotOpened;
    const int openError = tests::ErrorNumberOf(
        [&] { opened = modVantrel::OpenC3dFile(state, file_.string(), tests::NoEvents); });
    if (openError != 0 || opened != OpenResult::Success) return true;
    bool failed = false;
    for (const auto& report : AllReports()) {
      failed |= tests::ErrorNumberOf([&] {
                  tests::TextOf([&](ReportOutput& output) { report(state, output); });
                }) != 0;
    }
    return failed;
  }

  tests::TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "trial.c3d";
};

TEST_P(DamagedTrial, EveryPrefixEndsInAResultCodeOrARunTimeErrorUntilTheSectionIsWhole) {
  const Trial good = SmallTrial(GetParam()).Build();
  const auto frames = static_cast<std::size_t>(good.FrameDataPosition() - 1);
  std::size_t shortestGood = good.Size();
  for (std::size_t size = 0; size <= good.Size(); ++size) {
    const bool failed = Fails(Trial(good).TruncateTo(size));
    if (failed) {
      EXPECT_LT(size, frames) << "opening reads no frames";
      EXPECT_LT(size, shortestGood) << "a longer prefix fails where a shorter one did not";
    } else {
      shortestGood = std::min(shortestGood, size);
    }
  }
  EXPECT_GT(shortestGood, 512U) << "a file without its parameter section was taken for good";
}

TEST_P(DamagedTrial, EveryByteOfTheSectionAndItsHeaderMayBeWrong) {
  const Trial good = SmallTrial(GetParam()).Build();
  std::size_t survived = 0;
  for (std::int32_t position = 1; position < good.FrameDataPosition(); ++position) {
    const auto byte =
        std::to_integer<unsigned>(good.Bytes()[static_cast<std::size_t>(position) - 1]);
    for (const unsigned wrong : {byte ^ 0xFFU, byte ^ 0x80U, byte + 1}) {
      if (!Fails(Trial(good).SetByte(position, static_cast<std::uint8_t>(wrong)))) ++survived;
    }
  }
  EXPECT_GT(survived, 0U) << "labels and reserved bytes may hold anything";
}

INSTANTIATE_TEST_SUITE_P(Processors, DamagedTrial,
                         testing::Values(modVantrel::kProcessorIntel, modVantrel::kProcessorDec),
                         [](const auto& suite) {
                           return suite.param == modVantrel::kProcessorDec ? "Dec" : "Intel";
                         });

std::string TextOfReport(const std::function<void(const FileState&, ReportOutput&)>& report,
                         FileState& state) {
  return tests::TextOf([&](ReportOutput& output) { report(state, output); });
}

// The labels of the header report's lines that differ.
std::vector<std::string> DifferingFields(const std::string& left, const std::string& right) {
  const auto leftLines = tests::LinesOf(left);
  const auto rightLines = tests::LinesOf(right);
  EXPECT_EQ(leftLines.size(), rightLines.size());
  std::vector<std::string> fields;
  for (std::size_t i = 0; i < std::min(leftLines.size(), rightLines.size()); ++i) {
    if (leftLines[i] != rightLines[i])
      fields.push_back(leftLines[i].substr(0, leftLines[i].find(':')));
  }
  return fields;
}

TEST(LargeTrial, OfNearlyTwoGigabytesGivesTheReportsOfTheSmallOneButForTheClaimedNumbers) {
  const TrialBuilder builder = SmallTrial(modVantrel::kProcessorIntel).Frames(1, 32767);
  tests::TrialOpener small;
  ASSERT_EQ(small.Open(builder), OpenResult::Success);

  const Trial large = builder.BuildWithoutFrames(7000, 1000);
  tests::TemporaryFolder folder;
  const std::filesystem::path file = folder / "large.c3d";
  large.WriteSparseTo(file);
  ASSERT_GT(std::filesystem::file_size(file), 1900000000U);
  FileState state;
  ASSERT_EQ(modVantrel::OpenC3dFile(state, file.string(), tests::NoEvents), OpenResult::Success);

  EXPECT_EQ(DifferingFields(TextOfReport(reports::ShowHeaderInfo, small.State()),
                            TextOfReport(reports::ShowHeaderInfo, state)),
            (std::vector<std::string>{"OpenC3dFileSpec", "PointLabelCount", "AnalogValuesPerFrame",
                                      "AnalogChannelsCount"}));
  EXPECT_EQ(TextOfReport(reports::ShowAllGroupsAndAllParams, state),
            TextOfReport(reports::ShowAllGroupsAndAllParams, small.State()));
  EXPECT_EQ(TextOfReport(reports::ShowTree, state), TextOfReport(reports::ShowTree, small.State()));
  EXPECT_EQ(state.PointLabels.Count(), 7000);
  EXPECT_EQ(state.PointLabels[1], "LTOE");
  EXPECT_EQ(state.AnalogLabels.Count(), 1000);
}

TEST(TrialForms, ProcessorAndStorageChangeNothingButTheSignOfTheScale) {
  const auto reportsOf = [](std::uint8_t processor, Storage storage) {
    tests::TrialOpener opener;
    EXPECT_EQ(opener.Open(SmallTrial(processor).StoredAs(storage)), OpenResult::Success);
    return std::vector{TextOfReport(reports::ShowPointLabels, opener.State()),
                       TextOfReport(reports::ShowTree, opener.State()),
                       TextOfReport(reports::ShowAllGroupsAndAllParams, opener.State())};
  };
  const auto integers = reportsOf(modVantrel::kProcessorIntel, Storage::Integer);
  const auto singles = reportsOf(modVantrel::kProcessorIntel, Storage::Single);
  EXPECT_EQ(reportsOf(modVantrel::kProcessorDec, Storage::Integer), integers);
  EXPECT_EQ(reportsOf(modVantrel::kProcessorDec, Storage::Single), singles);

  std::string withSign = integers[2];
  const std::string tag = "  SCALE\n    sng(1,1,1,1,1,1,1)            ";
  ASSERT_NE(withSign.find(tag + "0.1\n"), std::string::npos);
  withSign.insert(withSign.find(tag) + tag.size(), 1, '-');
  EXPECT_EQ(singles, (std::vector{integers[0], integers[1], withSign}));
}

}  // namespace
