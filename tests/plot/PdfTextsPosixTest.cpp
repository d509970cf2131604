// SPDX-License-Identifier: GPL-3.0-or-later

// PDF files as programs of somebody else read them, which run on this system alone.

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SamplePages.h"
#include "plot/PageFiles.h"
#include "tests/TestTrials.h"

namespace {

using plot::BytesOf;
using plot::FileKind;
using plot_tests::SamplePages;
using testing::HasSubstr;
using testing::SizeIs;

// What `command` prints about the PDF, whose file stands between it and `behind`.
std::string Asked(const std::string& command, const std::string& pdf, const std::string& behind) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "asked.pdf", std::ios::binary) << pdf;
  const std::string line = command + " '" + (folder / "asked.pdf").string() + "' " + behind;
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(::popen(line.c_str(), "r"),
                                                               ::pclose);
  std::string text;
  for (int c = 0; (c = std::fgetc(output.get())) != EOF;) text += static_cast<char>(c);
  return text;
}

TEST(PdfTexts, AreOnAllPagesAndCanBeFound) {
  const auto files = BytesOf(SamplePages({3, 1, true, {}}), FileKind::Pdf, {}, {});
  ASSERT_THAT(files, SizeIs(1));
  const std::string text = Asked("pdftotext", files[0], "-");
  EXPECT_THAT(text, HasSubstr("Knee flexion"));
  EXPECT_THAT(text, HasSubstr("Ankle dorsiflexion"));
  EXPECT_THAT(text, HasSubstr("Page 5 of 5"));
  EXPECT_EQ(std::ranges::count(text, '\f'), 5);
}

TEST(PdfTexts, AreInThreeFontsThatTheFileCarries) {
  const auto files = BytesOf(SamplePages({}), FileKind::Pdf, {}, {});
  std::vector<std::string> lines = tests::LinesOf(Asked("pdffonts", files[0], ""));
  ASSERT_THAT(lines, SizeIs(5)) << "two lines of heading";
  lines.erase(lines.begin(), lines.begin() + 2);
  EXPECT_THAT(lines, testing::Each(testing::MatchesRegex(".*DejaVuSans.* yes .*")));
}

}  // namespace
