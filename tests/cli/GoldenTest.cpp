// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "reports/ReportList.h"
#include "tests/GaitTrials.h"
#include "tests/cli/ToolInFolder.h"

// The tool's reports on the sample walk, held against texts that were read over once.
// tests/remake_golden.sh makes them anew.
namespace {

using tests::ReadWholeFile;
using tests::ToolInFolder;
using tests::ToolResult;

const std::filesystem::path kGolden = VANTREL_GOLDEN_FOLDER;

// A line of cases.txt: the file with the expected text, then the tool's arguments.
std::vector<std::vector<std::string>> Cases() {
  std::vector<std::vector<std::string>> cases;
  std::ifstream file(kGolden / "cases.txt");
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::vector<std::string>& entry = cases.emplace_back();
    for (std::string word; words >> word;) entry.push_back(word);
    if (entry.empty()) cases.pop_back();
  }
  return cases;
}

// Where two texts differ first: the line's number and both lines.
std::string FirstDifference(const std::string& expected, const std::string& text) {
  std::istringstream left(expected);
  std::istringstream right(text);
  std::string a;
  std::string b;
  for (int line = 1;; ++line) {
    const bool hasLeft = static_cast<bool>(std::getline(left, a));
    const bool hasRight = static_cast<bool>(std::getline(right, b));
    if (!hasLeft && !hasRight) return "only the end of the last line differs";
    if (hasLeft != hasRight || a != b) {
      return "line " + std::to_string(line) + "\n  expected " + (hasLeft ? a : "no line") +
             "\n  printed  " + (hasRight ? b : "no line");
    }
  }
}

void ExpectGolden(const std::string& name, const std::string& text) {
  ASSERT_TRUE(std::filesystem::exists(kGolden / name)) << name;
  const std::string expected = ReadWholeFile(kGolden / name);
  EXPECT_FALSE(expected.empty()) << name;
  EXPECT_TRUE(text == expected) << name << ": " << FirstDifference(expected, text);
}

TEST(Golden, EveryReportOfTheToolPrintsItsText) {
  const ToolInFolder tool;
  std::vector<std::string> printed;
  for (const std::vector<std::string>& words : Cases()) {
    std::vector<std::string> arguments(words.begin() + 1, words.end());
    printed.push_back(arguments.back());
    arguments.emplace_back(tests::kSampleWalk);
    const ToolResult run = tool.Run(arguments);
    EXPECT_EQ(run.Status, 0) << run.Err;
    EXPECT_EQ(run.Err, "");
    ExpectGolden(words[0], run.Out);
  }
  for (const reports::ReportInfo& report : reports::kReports) {
    if (report.NeedsNormals) continue;  // its text is that of other files too
    EXPECT_NE(std::ranges::find(printed, report.Name), printed.end())
        << report.Name << " has no text";
  }
}

// The strides of the sample walk whose files were read over.
constexpr auto kReadOverLeft = "sample-walk-L1.gcd";
constexpr auto kReadOverRight = "sample-walk-R3.gcd";

TEST(Golden, GcdFilesOfBothSidesHaveTheirTexts) {
  const ToolInFolder tool;
  ASSERT_EQ(tool.Run({"gcd", tests::kSampleWalk}).Status, 0);
  for (const char* name : {kReadOverLeft, kReadOverRight}) ExpectGolden(name, tool.Read(name));
}

// A GCD file's lines without those that are numbers: the names of its measures and curves.
std::vector<std::string> NamesOfValues(const std::string& text) {
  std::vector<std::string> names = tests::LinesOf(text, "\r\n");
  std::erase_if(names, [](const std::string& line) {
    return line.find_first_not_of("-.0123456789") == std::string::npos;
  });
  return names;
}

TEST(Golden, EveryStrideHasAGcdFileOfItsOwnWithTheValuesOfItsSide) {
  const ToolInFolder tool;
  ASSERT_EQ(tool.Run({"gcd", tests::kSampleWalk}).Status, 0);
  std::vector<std::string> files;
  std::set<std::string> texts;
  for (const auto& [side, readOver] :
       {std::pair{"L", kReadOverLeft}, std::pair{"R", kReadOverRight}}) {
    const std::string golden = ReadWholeFile(kGolden / readOver);
    for (const std::string number : {"1", "2", "3"}) {
      const std::string& name = files.emplace_back("sample-walk-" + (side + number) + ".gcd");
      const std::string text = tool.Read(name);
      EXPECT_EQ(NamesOfValues(text), NamesOfValues(golden)) << name;
      EXPECT_EQ(std::ranges::count(text, '\n'), std::ranges::count(golden, '\n')) << name;
      EXPECT_TRUE(texts.insert(text).second) << name << " is the file of another stride";
    }
  }
  files.emplace_back(tests::kSampleWalk);
  std::ranges::sort(files);
  EXPECT_EQ(tests::NamesIn(tool.Path()), files) << "and nothing else is written";
}

TEST(Golden, EveryTextHasItsCase) {
  std::vector<std::string> known = {"cases.txt"};
  for (const auto& words : Cases()) known.push_back(words[0]);
  for (const std::string& name : tests::NamesIn(kGolden)) {
    EXPECT_TRUE(name.ends_with(".gcd") || std::ranges::find(known, name) != known.end()) << name;
  }
}

}  // namespace
