// SPDX-License-Identifier: GPL-3.0-or-later

// Lines as the reports write them, as a spreadsheet takes them.

#include <QString>
#include <gtest/gtest.h>

#include "app/TableCopy.h"

namespace {

std::string Table(const char* lines) {
  return app::AsTable(QString::fromUtf8(lines)).toStdString();
}

TEST(TableCopy, RunsOfBlanksPartColumnsAndSingleOnesDoNot) {
  EXPECT_EQ(Table("  001  00.00000  -0508.1816  0078.8730  0042.0000\n"
                  "  002  00.01000  -0508.1816  0078.6563  0042.0000\n"),
            "001\t00.00000\t-0508.1816\t0078.8730\t0042.0000\n"
            "002\t00.01000\t-0508.1816\t0078.6563\t0042.0000\n");
  EXPECT_EQ(Table("    Left Foot Strike      00.50000\n    Right Foot Off        00.61000\n"),
            "Left Foot Strike\t00.50000\nRight Foot Off\t00.61000\n");
}

TEST(TableCopy, LabelsAndTheirValuesAreTwoColumns) {
  EXPECT_EQ(
      Table("Left Side #1\n    Stridetime:              1.1\n    Cadence:                 0.9\n"),
      "Left Side #1\nStridetime:\t1.1\nCadence:\t0.9\n");
}

TEST(TableCopy, TheSummaryKeepsItsValuesWhole) {
  EXPECT_EQ(
      Table("Measure                Unit                  Left            Right  Asymmetry (%)\n"
            "Walking speed          m/s        1.16 \u00b1 0.00 (3)  1.16 \u00b1 0.00 (3)          "
            "  0.0\n"
            "Cadence                steps/min  109.1 \u00b1 0.0 (3)  109.1 \u00b1 0.0 (3)          "
            "  0.0\n"),
      "Measure\tUnit\tLeft\tRight\tAsymmetry (%)\n"
      "Walking speed\tm/s\t1.16 \u00b1 0.00 (3)\t1.16 \u00b1 0.00 (3)\t0.0\n"
      "Cadence\tsteps/min\t109.1 \u00b1 0.0 (3)\t109.1 \u00b1 0.0 (3)\t0.0\n");
}

TEST(TableCopy, AMissingValueLeavesItsColumnEmpty) {
  EXPECT_EQ(Table("side   number  start (s)  stop (s)\n"
                  "Left        1      0.500     1.600\n"
                  "Right       2                2.150\n"),
            "side\tnumber\tstart (s)\tstop (s)\nLeft\t1\t0.500\t1.600\nRight\t2\t\t2.150\n");
}

TEST(TableCopy, RowsBesideEventsBeginWithAnEmptyColumn) {
  EXPECT_EQ(Table("                   050  00.49000  0042.0000\n"
                  "Left Foot Strike   051  00.50000  0042.0000\n"
                  "                   052  00.51000  0042.0000\n"),
            "\t050\t00.49000\t0042.0000\nLeft Foot Strike\t051\t00.50000\t0042.0000\n"
            "\t052\t00.51000\t0042.0000\n");
}

TEST(TableCopy, AnEventBesideARowIsOneValueOnEitherSide) {
  EXPECT_EQ(Table("Left  Foot Strike  051  00.50000  0771.8184\n"
                  "                   052  00.51000  0771.8184\n"
                  "Right Foot Off     062  00.61000  0771.8184\n"),
            "Left  Foot Strike\t051\t00.50000\t0771.8184\n\t052\t00.51000\t0771.8184\n"
            "Right Foot Off\t062\t00.61000\t0771.8184\n");
}

TEST(TableCopy, RowsOfWiderNumbersStillHaveTheirColumns) {
  EXPECT_EQ(Table("                   999  09.98000  0042.0000\n"
                  "                   1000  09.99000  -10042.0000\n"
                  "Left Foot Strike   1001  10.00000  0042.0000\n"
                  "                   998  09.97000  0042.0000\n"),
            "\t999\t09.98000\t0042.0000\n\t1000\t09.99000\t-10042.0000\n"
            "Left Foot Strike\t1001\t10.00000\t0042.0000\n\t998\t09.97000\t0042.0000\n");
}

TEST(TableCopy, WithoutEventsTheBlanksBeforeAllLinesAreNoColumn) {
  EXPECT_EQ(Table("                   050  00.49000\n                   052  00.51000\n"),
            "050\t00.49000\n052\t00.51000\n");
}

TEST(TableCopy, HeadingsOfAListingDoNotSpoilItsColumns) {
  EXPECT_EQ(Table("LKneeAngles  Left Side #1\n"
                  "     Opposite foot off time:    00.6100\n"
                  "     Opposite foot strike time: 01.0500\n"
                  "     (Frame#, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}])\n"
                  "  00  00.5000  15.0830  04.5244  00.6953\n"),
            "LKneeAngles\tLeft Side #1\n"
            "Opposite foot off time:\t00.6100\n"
            "Opposite foot strike time:\t01.0500\n"
            "(Frame#, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}])\n"
            "00\t00.5000\t15.0830\t04.5244\t00.6953\n");
}

TEST(TableCopy, TextsInQuotesKeepTheirBlanks) {
  EXPECT_EQ(Table("    txt(1,1,1,1,1,1)              'gait  lab  1'\n"
                  "    txt(2,1,1,1,1,1)              'it's'\nLabel: 'L  TOE'\n"),
            "txt(1,1,1,1,1,1)\t'gait  lab  1'\ntxt(2,1,1,1,1,1)\t'it's'\nLabel:\t'L  TOE'\n");
}

TEST(TableCopy, EmptyLinesStay) { EXPECT_EQ(Table("a  b\n\nc  d"), "a\tb\n\nc\td"); }

TEST(TableCopy, TabsOfAValueArePartOfIt) { EXPECT_EQ(Table("a\tb  c"), "a b\tc"); }

}  // namespace
