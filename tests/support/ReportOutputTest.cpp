// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "support/ReportOutput.h"

namespace {

using modAllPurpose::ReportResult;

TEST(ReportResult, IsRejectedWithWhateverTextStandsInPlaceOfTheReport) {
  EXPECT_TRUE(ReportResult::Rejected("point label not found").IsRejected());
  EXPECT_EQ(ReportResult::Rejected("point label not found").Text(), "point label not found");
  EXPECT_TRUE(ReportResult::Rejected("").IsRejected());
}

TEST(ReportResult, OfAWrittenReportHasNoText) {
  EXPECT_FALSE(ReportResult::Written().IsRejected());
  EXPECT_EQ(ReportResult::Written().Text(), "");
}

}  // namespace
