// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include <QPoint>
#include <QString>
#include <gtest/gtest.h>

#include "app/CurvesWindow.h"
#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"
#include "tests/app/Boxes.h"
#include "tests/app/ConfigFolder.h"

namespace tests {

// A walk of three left strides (from 0.5, 1.5 and 2.5 s) and two right ones (from 1 and 2 s), a
// second each. Its knee angles rise by 10 degrees a second from `start` on, so that splines give
// back exactly KneeAt.
sample::TrialBuilder RisingKnees(float start);
inline double KneeAt(double start, double seconds) { return start + 10 * seconds; }

// The curves window on a desktop of its own, worked by mouse and keys.
class CurvesTest : public ::testing::Test {
 protected:
  CurvesTest();

  // Shows the window and waits until it is active and has read what it has.
  void Start(pages::PageKind page = pages::PageKind::Kinematics);
  void WaitUntilRead();

  std::string Write(const sample::TrialBuilder& trial, const std::string& name);
  // Three trials, whose knees start at 0, 10 and 20 degrees.
  std::vector<std::string> ThreeTrials();
  void DropAll(const std::vector<std::string>& paths);

  app::PageView& View() { return window_->View(); }
  QTreeWidgetItem* Trial(int trial) { return List()->topLevelItem(trial); }
  // The line of a stride, by its text: "Left stride 3".
  QTreeWidgetItem* Stride(int trial, const char* text);
  app::VisitList* List() { return Part<app::VisitList>("visitList"); }
  QAction* Entry(const char* name) { return Part<QAction>(name); }
  // Clicks the check mark of a line of the list.
  void ClickCheckMark(QTreeWidgetItem* item);

  // The panel of that title on the page, and where a value stands in it.
  std::size_t Panel(const std::string& title);
  const pages::CurvePanel& CurvesOf(const std::string& title);
  QPoint PlaceOf(const std::string& title, double percent, double value);
  void HoverAt(const QPoint& place);
  QString Pointed() { return View().accessibleDescription(); }

  template <typename Widget>
  Widget* Part(const char* name) {
    auto* part = window_->findChild<Widget*>(QString::fromLatin1(name));
    if (part == nullptr) throw std::out_of_range(name);
    return part;
  }

  TemporaryFolder folder_;
  ConfigFolder config_{(folder_ / "config").string()};
  std::unique_ptr<app::CurvesWindow> window_;
  Boxes boxes_;
};

}  // namespace tests
