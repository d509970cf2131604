// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <map>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "gait/EventExtraction.h"
#include "reports/HeaderReport.h"
#include "sample/SampleWalk.h"
#include "support/NumberForms.h"
#include "tests/GaitTrials.h"
#include "tests/reports/AllReports.h"

namespace {

using modVantrel::FindGaitEvents;
using tests::OpenedWalk;

class CommaForm : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// Whether the environment names a locale other than the plain one.
bool EnvironmentNamesALocale() {
  const char* name = std::getenv("LC_ALL");
  const std::string text = name == nullptr ? "" : name;
  return !text.empty() && text != "C" && text != "POSIX" && !text.starts_with("C.");
}

// Takes the environment's locale as a program with a window does, and a comma in C++ streams
// whatever that is; takes both back at its end.
class CommaLocale {
 public:
  CommaLocale()
      : cBefore_(std::setlocale(LC_ALL, nullptr)),
        cSet_(std::setlocale(LC_ALL, "") != nullptr),
        cppBefore_(std::locale::global(std::locale(std::locale::classic(), new CommaForm))) {}
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;
  ~CommaLocale() {
    std::locale::global(cppBefore_);
    std::setlocale(LC_ALL, cBefore_.c_str());
  }

  bool CLocaleIsSet() const { return cSet_; }

 private:
  std::string cBefore_;
  bool cSet_;
  std::locale cppBefore_;
};

std::string HeaderOf(const modVantrel::FileState& state) {
  return tests::TextOf([&](auto& output) { reports::ShowHeaderInfo(state, output); });
}

TEST(Locale, ReportsDoNotDependOnIt) {
  const sample::Trial walk = sample::SampleWalk().Build();
  OpenedWalk plain(walk, FindGaitEvents);
  const auto expected = tests::AllReportsOf(plain.State());
  const std::string header = HeaderOf(plain.State());

  const CommaLocale comma;
  std::ostringstream stream;
  stream << 1234.5;
  ASSERT_EQ(stream.str(), "1.234,5") << "the comma of C++ streams is not in force";
  if (EnvironmentNamesALocale()) {
    ASSERT_TRUE(comma.CLocaleIsSet()) << "LC_ALL names a locale that is not there";
    std::array<char, 8> digits{};
    std::snprintf(digits.data(), digits.size(), "%.1f", 0.5);
    ASSERT_STREQ(digits.data(),
                 (std::string("0") + std::localeconv()->decimal_point + "5").c_str());
    if (std::string(std::getenv("LC_ALL")).starts_with("de_")) {
      ASSERT_STREQ(digits.data(), "0,5");
    }
  }
  OpenedWalk anew(walk, FindGaitEvents);
  const auto texts = tests::AllReportsOf(anew.State());
  ASSERT_EQ(texts.size(), expected.size());
  for (const auto& [name, text] : expected) EXPECT_TRUE(texts.at(name) == text) << name;
  EXPECT_EQ(HeaderOf(plain.State()), header);
}

TEST(Locale, NumbersAreReadAndPrintedWithAPoint) {
  const CommaLocale comma;
  EXPECT_EQ(modAllPurposeNumbers::LeadingNumber("1.5"), 1.5);
  EXPECT_EQ(modAllPurposeNumbers::LeadingNumber("1,5"), 1.0);
  EXPECT_EQ(modAllPurposeNumbers::GeneralForm(1234.5F), "1234.5");
  EXPECT_EQ(modAllPurposeNumbers::FormatNumber(modAllPurposeNumbers::NumberPattern("0000.0000"),
                                               123456.75),
            "123456.7500");
  EXPECT_EQ(modAllPurposeNumbers::FormatNumber(modAllPurposeNumbers::NumberPattern("0.00"), 1e17),
            "100000000000000000.00");
}

}  // namespace
