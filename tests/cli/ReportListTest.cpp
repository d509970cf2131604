// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <functional>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "reports/ReportList.h"
#include "reports/TrialTableList.h"
#include "tests/TestTrials.h"
#include "tests/cli/ToolInside.h"

// Whatever lists the reports, or the options of the tool, has those that there are: what is typed
// by hand must not lag behind the list.
namespace {

using reports::ReportInfo;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::UnorderedElementsAreArray;
using tests::RunInside;

const std::filesystem::path kRoot = VANTREL_SOURCE_DIR;

// The names of the reports that `isMeant`, in the order of the list.
std::vector<std::string> NamesOf(const std::function<bool(const ReportInfo&)>& isMeant) {
  std::vector<std::string> names;
  for (const ReportInfo& report : reports::kReports) {
    if (isMeant(report)) names.emplace_back(report.Name);
  }
  return names;
}

std::vector<std::string> Names() {
  return NamesOf([](const ReportInfo&) { return true; });
}

bool HasTable(const ReportInfo& report) { return !report.Columns.empty(); }

// All that `pattern`'s group finds in `text`.
std::vector<std::string> Finds(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator next(text.begin(), text.end(), regex), end; next != end; ++next) {
    found.push_back((*next)[1]);
  }
  return found;
}

// `text` between the first `start` and the `end` that follows it.
std::string Between(const std::string& text, std::string_view start, std::string_view end) {
  const auto from = text.find(start);
  if (from == std::string::npos) return {};
  const auto begin = from + start.size();
  return text.substr(begin, text.find(end, begin) - begin);
}

std::set<std::string> OptionsOfHelp() {
  const std::string help = RunInside({"--help"}).Out;
  const auto options = Finds(Between(help, "\nOptions:\n", "\nReports:\n"), "\n?  .*?(--[a-z-]+)");
  return {options.begin(), options.end()};
}

std::string Completion() {
  return tests::ReadWholeFile(kRoot / "packaging/completion/vantrel-report.bash");
}

// The words of a list of the completion.
std::vector<std::string> CompletedWords(const std::string& list) {
  return Finds(Between(Completion(), "local " + list + "=\"", "\""), R"(([\w-]+))");
}

// The words that the completion offers behind an option.
std::vector<std::string> CompletedValues(const std::string& option) {
  return Finds(Between(Between(Completion(), "    " + option + ")\n", ";;"), "-W \"", "\""),
               R"(([\w-]+))");
}

std::string Manual() { return tests::ReadWholeFile(kRoot / "docs/manual.md"); }

// The part of the manual that names the columns of a report's table.
std::string ManualOf(std::string_view report) {
  const std::string text = Between(Manual(), fmt::format("\n### {}\n", report), "\n### ");
  return report == "visit" && text.starts_with("\nThe same columns without `file`")
             ? ManualOf("summary")
             : text;
}

// A section of the man page, its dashes without their escapes.
std::string ManSection(const std::string& name) {
  const std::string page = tests::ReadWholeFile(kRoot / "packaging/man/vantrel-report.1");
  return std::regex_replace(Between(page, "\n.SH " + name + "\n", "\n.SH "), std::regex(R"(\\-)"),
                            "-");
}

// The part of the man page that describes a report.
std::string ManOf(std::string_view report) {
  return Between(ManSection("REPORTS") + "\n.TP\n", fmt::format(".TP\n.B {}\n", report), "\n.TP\n");
}

TEST(ReportList, NamesEachReportOnceWithALineOfItsOwn) {
  const auto names = Names();
  EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), names.size());
  for (const ReportInfo& report : reports::kReports) {
    EXPECT_EQ(reports::FindReport(report.Name), &report);
    EXPECT_FALSE(report.Description.empty()) << report.Name;
    EXPECT_EQ(report.Description.find('\n'), std::string_view::npos) << report.Name;
  }
  EXPECT_EQ(reports::FindReport("no such report"), nullptr);
}

TEST(ReportList, IsWhatHelpLists) {
  const std::string help = RunInside({"--help"}).Out;
  EXPECT_THAT(Finds(Between(help, "\nReports:", "\nExit status"), R"(\n  (\S+))"),
              ElementsAreArray(Names()));
  for (const ReportInfo& report : reports::kReports) {
    const std::string start = fmt::format("\n  {:<27} {}", report.Name, report.Description);
    EXPECT_THAT(help, HasSubstr(start));
    const std::string remark = Between(help, start, "\n");
    EXPECT_EQ(remark.find("needs --label") != std::string::npos, report.NeedsLabel) << remark;
    EXPECT_EQ(remark.find("needs --normal") != std::string::npos, report.NeedsNormals) << remark;
    EXPECT_EQ(remark.find("takes --events") != std::string::npos, report.TakesEvents) << remark;
    EXPECT_EQ(remark.find("takes --group") != std::string::npos, report.TakesGroup) << remark;
    EXPECT_EQ(remark.find("--output-dir") != std::string::npos, report.WritesGcdFiles) << remark;
  }
}

TEST(ReportList, IsWhatARefusedReportIsAnsweredWith) {
  EXPECT_THAT(RunInside({"nothing", "x.c3d"}).Err,
              HasSubstr(fmt::format("; there are: {}\n", fmt::join(Names(), ", "))));
}

TEST(ReportList, SaysWhichReportsNeedALabel) {
  for (const ReportInfo& report : reports::kReports) {
    const auto result = RunInside({std::string(report.Name), "missing.c3d"});
    EXPECT_EQ(result.Status, report.NeedsLabel || report.NeedsNormals ? 2 : 1) << result.Err;
  }
}

TEST(ReportList, HasColumnsForTheTablesThatThereAre) {
  for (const ReportInfo& report : reports::kReports) {
    if (report.Pools || report.ReadsAnyFile) {
      EXPECT_FALSE(report.Columns.empty()) << report.Name;
    } else if (!report.Columns.empty()) {
      EXPECT_EQ(reports::FindTrialTable(report.Name).Name, report.Name);
    }
  }
}

TEST(ReportList, IsWhatTheCompletionOffers) {
  EXPECT_THAT(CompletedWords("reports"), ElementsAreArray(Names()));
}

TEST(ReportList, IsWhatTheManPageDescribes) {
  EXPECT_THAT(Finds(ManSection("REPORTS"), R"(\.TP\n\.B (\S+))"), ElementsAreArray(Names()));
  for (const ReportInfo& report : reports::kReports) {
    const std::string text = ManOf(report.Name);
    EXPECT_EQ(text.find("--label") != std::string::npos, report.NeedsLabel) << report.Name;
    EXPECT_EQ(text.find("--events") != std::string::npos, report.TakesEvents) << report.Name;
    EXPECT_EQ(text.find("--group") != std::string::npos, report.TakesGroup) << report.Name;
    EXPECT_EQ(text.find("--output-dir") != std::string::npos, report.WritesGcdFiles) << report.Name;
    EXPECT_TRUE(!report.NeedsNormals || text.find("--normal") != std::string::npos) << report.Name;
  }
}

TEST(ReportList, SaysWhichReportsTheManPageTellsToHaveNoTable) {
  const std::string sentence = Between(ManSection("OPTIONS"), "\nThe reports\n", "have no table.");
  EXPECT_THAT(
      Finds(sentence, R"(\.BR? (\S+))"),
      ElementsAreArray(NamesOf([](const ReportInfo& report) { return !HasTable(report); })));
}

TEST(ReportList, IsWhatTheManualDescribesTheTablesOf) {
  const std::string tables = Between(Manual(), "\n## Tables\n", "\n### R\n") + "\n";
  EXPECT_THAT(Finds(tables, R"(\n### (\S+)\n)"), UnorderedElementsAreArray(NamesOf(HasTable)));
  for (const ReportInfo& report : reports::kReports) {
    const std::string text = ManualOf(report.Name);
    for (const std::string_view column : report.Columns) {
      EXPECT_THAT(text, HasSubstr(fmt::format("`{}`", column))) << report.Name;
    }
  }
}

TEST(ReportList, SaysWhichReportsTheManualTellsToTakeAllFilesTogether) {
  const std::string names = Between(Manual(), "\nIn the pooled reports (", ")");
  EXPECT_THAT(Finds(names, "`(.*?)`"),
              ElementsAreArray(NamesOf([](const ReportInfo& report) { return report.Pools; })));
}

TEST(OptionsOfTheTool, AreWhatTheCompletionOffers) {
  const auto offered = CompletedWords("options");
  EXPECT_EQ(std::set<std::string>(offered.begin(), offered.end()), OptionsOfHelp());
  EXPECT_FALSE(offered.empty());
}

TEST(OptionsOfTheTool, TakeTheValuesThatTheCompletionOffers) {
  const std::string help = RunInside({"--help"}).Out;
  for (const std::string option : {"--format", "--axes"}) {
    EXPECT_THAT(Finds(Between(help, option + " ", " "), R"(([\w-]+))"),
                UnorderedElementsAreArray(CompletedValues(option)))
        << option;
  }
}

TEST(OptionsOfTheTool, AreWhatTheManPageDescribes) {
  std::set<std::string> names;
  for (const std::string& heading : Finds(ManSection("OPTIONS"), R"(\.TP\n([^\n]*))")) {
    for (const std::string& name : Finds(heading, "(--[a-z-]+)")) names.insert(name);
  }
  EXPECT_EQ(names, OptionsOfHelp());
}

}  // namespace
