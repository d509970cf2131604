// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/NavigationTree.h"
#include "reports/ParameterReport.h"
#include "reports/ReportList.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolRun.h"

// Reports of the tool on trials, good and bad, one or several in a run.
namespace {

namespace fs = std::filesystem;

using modAllPurpose::ReportOutput;
using modVantrel::FileState;
using sample::TrialBuilder;
using tests::RunTool;
using tests::ToolResult;

constexpr const char* kGroups = "POINT\nANALOG\n\n\n\n";

class ReportRunTest : public testing::Test {
 protected:
  std::string Write(const std::string& name, const sample::Trial& trial) {
    const fs::path path = folder_ / name;
    trial.WriteTo(path);
    return modAllPurpose::Utf8Path(path);
  }
  std::string Write(const std::string& name, const TrialBuilder& builder = {}) {
    return Write(name, builder.Build());
  }

  static void ExpectOutput(const std::vector<std::string>& arguments, const std::string& expected) {
    const ToolResult result = RunTool(arguments);
    EXPECT_EQ(result.Status, 0);
    EXPECT_EQ(result.Out, expected);
    EXPECT_EQ(result.Err, "");
  }

  static void ExpectFailure(const std::vector<std::string>& arguments, const std::string& out,
                            const std::string& err) {
    const ToolResult result = RunTool(arguments);
    EXPECT_EQ(result.Status, 1);
    EXPECT_EQ(result.Out, out);
    EXPECT_EQ(result.Err, err);
  }

  tests::TemporaryFolder folder_;
};

TEST_F(ReportRunTest, EachReportPrintsTheTextOfItsFunction) {
  using Report = void (*)(const FileState&, ReportOutput&);
  const std::map<std::string, Report> reports = {
      {"header", reports::ShowHeaderInfo},  {"parameter-header", reports::ShowParameterHeader},
      {"groups", reports::ShowAllGroups},   {"parameters", reports::ShowAllGroupsAndAllParams},
      {"labels", reports::ShowPointLabels}, {"tree", reports::ShowTree}};
  const std::string file = Write("trial.c3d");
  FileState state;
  ASSERT_EQ(modVantrel::OpenC3dFile(state, file, tests::NoEvents), modVantrel::OpenResult::Success);
  for (const auto& [name, report] : reports) {
    ExpectOutput({name, file},
                 tests::TextOf([&, show = report](auto& output) { show(state, output); }));
  }
}

TEST_F(ReportRunTest, GroupAndParamChooseTheReportOfParameters) {
  const std::string file = Write("trial.c3d", TrialBuilder().DropParam("POINT", "RATE"));
  ExpectOutput({"parameters", file, "--group", " point ", "--param", "labels"},
               "POINT\n  LABELS\n    txt(1,1,1,1,1,1)              'LTOE'\n");
  ExpectOutput({"--group=Point", "parameters", file},
               "POINT\n"
               "  USED\n    int(1,1,1,1,1,1,1)            1\n"
               "  SCALE\n    sng(1,1,1,1,1,1,1)            0.1\n"
               "  FRAMES\n    int(1,1,1,1,1,1,1)            10\n"
               "  LABELS\n    txt(1,1,1,1,1,1)              'LTOE'\n");
  ExpectOutput({"parameters", file, "--group", "POINT", "--param", "NOWHERE"},
               "POINT\n\nparam not found\n");
}

TEST_F(ReportRunTest, AMissingGroupIsRefusedOnStandardError) {
  const std::string file = Write("trial.c3d");
  ExpectFailure({"parameters", file, "--group", "NOWHERE"}, "",
                "vantrel-report: " + file + ": group not found\n");
  ExpectFailure({"parameters", file, "--group", "", "--param", "LABELS"}, "",
                "vantrel-report: " + file + ": neither group nor param found\n");
}

TEST_F(ReportRunTest, AnEmptyLabelIsLookedForLikeAnyOther) {
  const auto labelled = [this](const std::string& label) {
    return Write("trial.c3d", TrialBuilder().AddPoint(label, [](std::int32_t /*frame*/) {
      return std::array<float, 3>{};
    }));
  };
  std::string file = labelled("A");
  ExpectFailure({"--label", "", "point", file}, "",
                "vantrel-report: " + file + ": point label not found\n");
  file = labelled(" ");
  const ToolResult result = RunTool({"--label=", "point", file});
  EXPECT_EQ(result.Status, 0) << result.Err;
  EXPECT_TRUE(result.Out.starts_with("Label: ''\n")) << result.Out.substr(0, 40);
}

TEST_F(ReportRunTest, NamesOutsideAsciiAreTypedInUtf8) {
  const std::string file =
      Write("trial.c3d", TrialBuilder().SetParam("GR\xD6SSE", sample::IntegerParam("\xC4", 1)));
  ExpectOutput({"parameters", file, "--group", "gr\u00F6sse", "--param", "\u00E4"},
               "GR\u00D6SSE\n  \u00C4\n    int(1,1,1,1,1,1,1)            1\n");
}

TEST_F(ReportRunTest, AMissingFileIsNamed) {
  const std::string file = (folder_ / "missing.c3d").string();
  ExpectFailure(
      {"header", file}, "",
      "vantrel-report: " + file + ": File open error while attempting to open C3D file.\n");
}

TEST_F(ReportRunTest, AFolderIsAFileThatCannotBeOpened) {
  const std::string file = folder_.Path().string();
  ExpectFailure(
      {"header", file}, "",
      "vantrel-report: " + file + ": File open error while attempting to open C3D file.\n");
}

TEST_F(ReportRunTest, AnEmptyNameIsAFileThatCannotBeOpened) {
  ExpectFailure({"header", ""}, "",
                "vantrel-report: : File open error while attempting to open C3D file.\n");
}

TEST_F(ReportRunTest, AnyFileNameIsTakenAsItStands) {
  for (const std::string name : {
           "with blank.c3d",
           "M\u00FCller \u20AC.c3d",
           "[a,b]",
           "[trial]",
           "a,b.c3d",
           "'quoted'.c3d",
           "%s%n.c3d",
           "{}.c3d",
           "++",
           "header",
#ifndef _WIN32  // where a file may not be named so
           " blanks ",
           "\"quoted\"",
           "back\\slash",
           "not utf-8 \xFF.c3d",
           "new\nline.c3d",
#endif
       }) {
    const std::string file = Write(name);
    ExpectOutput({"groups", file}, kGroups);
    const ToolResult result = RunTool({"groups", name}, {}, folder_.Path());
    EXPECT_EQ(result.Out, kGroups) << "in its folder: " << name << '\n' << result.Err;
  }
}

TEST_F(ReportRunTest, NamesThatLookLikeOptionsStandBehindTwoDashes) {
  for (const std::string name : {"-trial.c3d", "--version", "--"}) {
    Write(name);
    const ToolResult result = RunTool({"groups", "--", name}, {}, folder_.Path());
    EXPECT_EQ(result.Status, 0) << name;
    EXPECT_EQ(result.Out, kGroups) << result.Err;
  }
}

TEST_F(ReportRunTest, ARunTimeErrorIsNamedByNumberAndDescription) {
  const std::string file = Write("short.c3d", TrialBuilder().Build().TruncateTo(100));
  ExpectFailure({"header", file}, "",
                "vantrel-report: " + file + ": Run-time error '62': Input past end of file\n");
  const std::string overflow =
      Write("overflow.c3d", TrialBuilder().Build().ClaimFrames(-32768, 32767));
  ExpectFailure({"header", overflow}, "",
                "vantrel-report: " + overflow + ": Run-time error '6': Overflow\n");
}

TEST_F(ReportRunTest, AReportCutShortPrintsWhatItHadWritten) {
  const std::string file =
      Write("trial.c3d", TrialBuilder().Build().SetInteger(tests::header::kTimedEventsCount, 19));
  const ToolResult result = RunTool({"header", file});
  EXPECT_EQ(result.Status, 1);
  EXPECT_EQ(result.Err,
            "vantrel-report: " + file + ": Run-time error '9': Subscript out of range\n");
  const std::vector<std::string> lines = tests::LinesOf(result.Out);
  EXPECT_EQ(lines.size(), 17U + 18U);
  EXPECT_TRUE(lines.back().starts_with("  18  0.0000  0  '"));
}

TEST_F(ReportRunTest, SeveralFilesStandUnderTheirNames) {
  const std::string first = Write("first.c3d");
  const std::string second = Write("second.c3d", TrialBuilder().DropGroup("ANALOG"));
  ExpectOutput({"groups", first, second},
               "==> " + first + " <==\n" + kGroups + "==> " + second + " <==\nPOINT\n\n\n\n");
  ExpectOutput({"groups", first, first},
               "==> " + first + " <==\n" + kGroups + "==> " + first + " <==\n" + kGroups);
}

TEST_F(ReportRunTest, AFailingFileInTheMiddleLeavesTheOthers) {
  const std::string first = Write("first.c3d");
  const std::string bad = Write("bad.c3d", TrialBuilder().Rate(0));
  const std::string last = Write("last.c3d");
  ExpectFailure(
      {"groups", first, bad, last},
      "==> " + first + " <==\n" + kGroups + "==> " + last + " <==\n" + kGroups,
      "vantrel-report: " + bad + ": The point frame rate is not set.  Can't read this C3D file.\n");
}

TEST_F(ReportRunTest, EveryResultCodePrintsItsMessage) {
  const std::vector<std::pair<sample::Trial, modVantrel::OpenResult>> trials = {
      {TrialBuilder().Build().SetByte(2, 0), modVantrel::OpenResult::FileKeyNotFound},
      {TrialBuilder().Build().SetByte(tests::kProcessorPosition, 86),
       modVantrel::OpenResult::ProcessorNotSupported},
      {TrialBuilder().SetParam("SUBJECTS", sample::IntegerParam("USED", 2)).Build(),
       modVantrel::OpenResult::MoreThanOneSubject},
      {TrialBuilder().DropParam("POINT", "SCALE").Build(),
       modVantrel::OpenResult::ScaleFactorCorrupt},
      {TrialBuilder().Build().SetInteger(tests::header::kPointLabelCount, 0),
       modVantrel::OpenResult::NoPointLabels},
      {TrialBuilder().Build().ClaimFrames(2, 1), modVantrel::OpenResult::NoFrames}};
  for (const auto& [trial, expected] : trials) {
    const std::string file = Write("bad.c3d", trial);
    ExpectFailure({"header", file}, "",
                  "vantrel-report: " + file + ": " +
                      std::string(modVantrel::OpenFailureMessage(expected)) + "\n");
  }
}

TEST_F(ReportRunTest, EachFileIsOpenedWithFreshState) {
  const auto label = [](const std::string& text) {
    return TrialBuilder().AddPoint(text,
                                   [](std::int32_t /*frame*/) { return std::array<float, 3>{}; });
  };
  const std::string prefixed = Write(
      "prefixed.c3d", label("S1:A")
                          .SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", 1))
                          .SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", {"S1:"})));
  const std::string plain = Write("plain.c3d", label("S1:B"));
  ExpectOutput({"labels", prefixed, plain},
               "==> " + prefixed + " <==\n001  A\n==> " + plain + " <==\n001  S1:B\n");
}

// Every file below `folder` with its size and the time of its last change.
std::map<std::string, std::pair<std::uintmax_t, fs::file_time_type>> Listing(
    const fs::path& folder) {
  std::map<std::string, std::pair<std::uintmax_t, fs::file_time_type>> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    files[entry.path().string()] = {entry.is_regular_file() ? entry.file_size() : 0,
                                    entry.last_write_time()};
  }
  return files;
}

TEST_F(ReportRunTest, NothingIsWrittenAnywhere) {
  Write("trial.c3d");
  fs::create_directory(folder_ / "Desktop");
  const auto before = Listing(folder_.Path());
  for (const reports::ReportInfo& report : reports::kReports) {
    if (report.WritesGcdFiles) continue;
    const ToolResult result =
        RunTool({std::string(report.Name), "trial.c3d", "--label", "LTOE", "--normal", "none.csv"},
                {}, folder_.Path());
    EXPECT_TRUE(result.Status == 0 || report.NeedsLabel || report.Pools) << result.Err;
    EXPECT_NE(result.Status, 2) << result.Err;
  }
  EXPECT_EQ(Listing(folder_.Path()), before);
}

}  // namespace
