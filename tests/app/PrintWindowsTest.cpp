// SPDX-License-Identifier: GPL-3.0-or-later

// Printing where there is no printer: Windows has a dialog for printers alone.

#include <QAction>
#include <QPrinterInfo>

#include "tests/app/CurvesFixture.h"
#include "tests/app/WindowFixture.h"

namespace {

using WindowPrint = tests::WindowTest;
using CurvesPrint = tests::CurvesTest;

constexpr const char* kNoPrinter =
    "There is no printer on this computer. Reports and pages can be saved as files.";

TEST_F(WindowPrint, WithoutAPrinterAMessageSaysSo) {
  ASSERT_TRUE(QPrinterInfo::availablePrinterNames().isEmpty());
  Start(WriteSampleWalk());
  boxes_.ExpectAndPress(Qt::Key_Return);
  Choose("mnuPrint");
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Text.toStdString(), kNoPrinter);
}

TEST_F(CurvesPrint, WithoutAPrinterAMessageSaysSo) {
  ASSERT_TRUE(QPrinterInfo::availablePrinterNames().isEmpty());
  Start();
  DropAll({Write(tests::RisingKnees(0), "walk.c3d")});
  WaitUntilRead();
  boxes_.ExpectAndPress(Qt::Key_Return);
  Entry("mnuPrint")->trigger();
  ASSERT_EQ(boxes_.Seen().size(), 1U);
  EXPECT_EQ(boxes_.Seen()[0].Text.toStdString(), kNoPrinter);
}

}  // namespace
