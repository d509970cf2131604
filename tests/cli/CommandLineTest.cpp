// SPDX-License-Identifier: GPL-3.0-or-later

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/CommandLine.h"

// What a command line asks for.
namespace {

using cli::ParseCommandLine;
using cli::Request;
using console::AskedText;
using console::UsageError;
using testing::ElementsAre;

Request Parsed(const std::vector<std::string>& arguments) {
  return std::get<Request>(ParseCommandLine(arguments));
}

// The sentence that refuses `arguments`.
std::string WhyRefused(const std::vector<std::string>& arguments) {
  try {
    ParseCommandLine(arguments);
  } catch (const UsageError& error) {
    return error.what();
  }
  return "not refused";
}

TEST(ToolCommandLine, WithoutOptionsLeavesThemAllOpen) {
  const Request request = Parsed({"groups", "a.c3d", "b.c3d"});
  EXPECT_EQ(request.Report, "groups");
  EXPECT_THAT(request.Files, ElementsAre("a.c3d", "b.c3d"));
  EXPECT_TRUE(request.Options.Labels.empty());
  EXPECT_EQ(request.Options.Group, std::nullopt);
  EXPECT_EQ(request.Options.Param, std::nullopt);
  EXPECT_FALSE(request.Events);
  EXPECT_FALSE(request.Gcd.Overwrite);
  EXPECT_EQ(request.Gcd.Options.OutputFolder, "");
}

TEST(ToolCommandLine, TakesOptionsOnEitherSideOfTheReportAndItsFiles) {
  const Request request = Parsed({"--label", "LTOE", "--events", "point", "a.c3d", "--group=G",
                                  "--param", "P", "--overwrite", "--output-dir", "out"});
  EXPECT_EQ(request.Options.Labels, std::vector<std::string>{"LTOE"});
  EXPECT_TRUE(request.Events);
  EXPECT_EQ(request.Options.Group, "G");
  EXPECT_EQ(request.Options.Param, "P");
  EXPECT_TRUE(request.Gcd.Overwrite);
  EXPECT_EQ(request.Gcd.Options.OutputFolder, "out");
  EXPECT_THAT(request.Files, ElementsAre("a.c3d"));
}

TEST(ToolCommandLine, TakesTheSubjectOfGcdFiles) {
  const auto subject = Parsed({"--gender", "f", "--date-of-birth", "2014-03-02", "--visit-date",
                               "2026-05-11", "gcd", "a.c3d"})
                           .Gcd.Options.Subject;
  EXPECT_EQ(subject.Gender, "f");
  EXPECT_EQ(subject.DateOfBirth, "2014-03-02");
  EXPECT_EQ(subject.VisitDate, "2026-05-11");
}

TEST(ToolCommandLine, TakesAValueAsItStands) {
  for (const std::string label : {"A=", "=", "A=B", "==", "[a,b]", "[a]", "", "--", "--events",
                                  "--group=", "-x", "a b", "\"a\""}) {
    EXPECT_EQ(Parsed({"--label", label, "point", "a.c3d"}).Options.Labels.front(), label);
    EXPECT_EQ(Parsed({"--label=" + label, "point", "a.c3d"}).Options.Labels.front(), label);
    EXPECT_EQ(Parsed({"point", "a.c3d", "--label=" + label}).Options.Labels.front(), label);
  }
}

TEST(ToolCommandLine, TakesWhatStandsBehindTwoDashesForFiles) {
  EXPECT_THAT(Parsed({"groups", "--", "--events", "-x", "--label=", "[a,b]", "--"}).Files,
              ElementsAre("--events", "-x", "--label=", "[a,b]", "--"));
  EXPECT_THAT(Parsed({"groups", "-"}).Files, ElementsAre("-"));
}

TEST(ToolCommandLine, NamesAnUnknownOptionBeforeAnythingElse) {
  const std::string refusal = "there is no option '--all'";
  EXPECT_EQ(WhyRefused({"--all"}), refusal);
  EXPECT_EQ(WhyRefused({"--all", "groups", "a.c3d"}), refusal);
  EXPECT_EQ(WhyRefused({"groups", "a.c3d", "--all=3"}), refusal);
  EXPECT_EQ(WhyRefused({"--all", "nothing", "a.c3d"}), refusal) << "no such report";
  EXPECT_EQ(WhyRefused({"--all", "x", "groups", "a.c3d"}), refusal) << "nor report x";
  EXPECT_EQ(WhyRefused({"point", "--all"}), refusal) << "no file, no label";
  EXPECT_EQ(WhyRefused({"--all", "groups", "a.c3d", "--label"}), refusal) << "a value is missing";
  EXPECT_EQ(WhyRefused({"--all", "--more", "groups", "a.c3d"}), refusal) << "the first of two";
}

TEST(ToolCommandLine, TakesWhateverBeginsWithADashForAnOption) {
  for (const std::string name : {"-x", "-5", "-label", "--labe", "--Label", "--!", "- x"}) {
    EXPECT_EQ(WhyRefused({name, "groups", "a.c3d"}), "there is no option '" + name + "'");
    EXPECT_EQ(WhyRefused({"groups", "a.c3d", name}), "there is no option '" + name + "'");
  }
}

TEST(ToolCommandLine, RefusesAValueOfAnOptionThatTakesNone) {
  for (const std::string value : {"", "true", "no", "0", "2", "maybe"}) {
    EXPECT_EQ(WhyRefused({"--overwrite=" + value, "gcd", "a.c3d"}), "--overwrite takes no value");
    EXPECT_EQ(WhyRefused({"gcd", "a.c3d", "--events=" + value}), "--events takes no value");
  }
  EXPECT_TRUE(Parsed({"--overwrite", "gcd", "a.c3d"}).Gcd.Overwrite);
  EXPECT_EQ(WhyRefused({"--overwrite=", "--all", "gcd", "a.c3d"}), "there is no option '--all'");
}

TEST(ToolCommandLine, AsksForHelpBesideAnUnknownOptionToo) {
  EXPECT_TRUE(std::holds_alternative<AskedText>(ParseCommandLine({"--all", "--help"})));
  EXPECT_TRUE(std::holds_alternative<AskedText>(ParseCommandLine({"--version", "--all"})));
}

TEST(ToolCommandLine, TellsAnEmptyGroupFromNone) {
  EXPECT_EQ(Parsed({"--group", "", "parameters", "a.c3d"}).Options.Group, "");
  EXPECT_EQ(Parsed({"--group=", "parameters", "a.c3d"}).Options.Group, "");
}

TEST(ToolCommandLine, OfHelpOrVersionAsksForItsText) {
  EXPECT_EQ(std::get<AskedText>(ParseCommandLine({"--version"})).Text,
            "vantrel-report " VANTREL_VERSION "\n");
  EXPECT_THAT(std::get<AskedText>(ParseCommandLine({"-h"})).Text, testing::EndsWith("\n"));
}

TEST(ToolCommandLine, RefusesADateThatIsNone) {
  for (const std::string option : {"--date-of-birth", "--visit-date"}) {
    for (const std::string text : {"2026-02-30", "20.11.2026", "2026-11-20T08:00", "today", ""}) {
      EXPECT_EQ(WhyRefused({option, text, "gcd", "a.c3d"}),
                fmt::format("{}: '{}' is no date of the form YYYY-MM-DD", option, text));
    }
  }
  EXPECT_EQ(Parsed({"--visit-date", " 2024-02-29", "gcd", "a.c3d"}).Report, "gcd");
}

TEST(ToolCommandLine, RefusesAnEmptyOutputFolder) {
  const std::string refusal = "--output-dir: the name of the folder is empty";
  EXPECT_EQ(WhyRefused({"--output-dir", "", "gcd", "a.c3d"}), refusal);
  EXPECT_EQ(WhyRefused({"--output-dir=", "gcd", "a.c3d"}), refusal);
}

TEST(ToolCommandLine, WithoutAReportIsRefusedInASentence) {
  EXPECT_EQ(WhyRefused({}), "REPORT is required");
  EXPECT_EQ(WhyRefused({"point", "a.c3d"}), "the report 'point' requires --label");
}

}  // namespace
