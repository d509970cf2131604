// SPDX-License-Identifier: GPL-3.0-or-later

#include <QGuiApplication>
#include <gtest/gtest.h>

// Tests of what is drawn: without a display, whatever the system has.
int main(int argc, char* argv[]) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
