// SPDX-License-Identifier: GPL-3.0-or-later

#include <QApplication>
#include <gtest/gtest.h>

#include "app/DesktopColours.h"
#include "tests/ToolkitVariables.h"

int main(int argc, char* argv[]) {
  ::testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();  // needs no display
  tests::TakeToolkitVariables();
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  app::FollowDesktopColours();
  return RUN_ALL_TESTS();
}
