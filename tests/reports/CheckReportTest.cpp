// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "reports/CheckReport.h"
#include "reports/CsvTable.h"
#include "reports/TableColumns.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::Finding;
using modVantrel::Severity;

const std::vector<Finding> kFindings = {
    {Severity::Error, "cannot-open", "POINT:SCALE", "It does not fit."},
    {Severity::Note, "first-frame", "byte 7", "It begins late."}};

std::string Shown(const std::vector<Finding>& findings) {
  return tests::TextOf(
      [&](modAllPurpose::ReportOutput& output) { reports::ShowFindings(findings, output); });
}

TEST(CheckReport, ShowsSeverityCodePlaceAndSentence) {
  EXPECT_EQ(Shown(kFindings),
            "error  cannot-open  POINT:SCALE  It does not fit.\n"
            "note   first-frame  byte 7       It begins late.\n");
}

TEST(CheckReport, SaysInOneLineThatNothingWasFound) {
  EXPECT_EQ(Shown({}), "Nothing unusual was found.\n");
}

TEST(CheckReport, MakesARowOfEachFinding) {
  EXPECT_EQ(tests::TextOf([](modAllPurpose::ReportOutput& output) {
              reports::CsvTable table(output);
              table.Begin(reports::columns::kCheck);
              reports::CheckRows("a.c3d", kFindings, table);
              table.End();
            }),
            "file,severity,code,place,message\n"
            "a.c3d,error,cannot-open,POINT:SCALE,It does not fit.\n"
            "a.c3d,note,first-frame,byte 7,It begins late.\n");
}

}  // namespace
