// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QString>
#include <QStringList>
#include <QTreeWidgetItem>
#include <gtest/gtest.h>

#include "app/CaptionButton.h"
#include "app/NodeTree.h"
#include "app/OutputPane.h"
#include "app/frmVantrel.h"
#include "c3d/FileState.h"
#include "tests/TestTrials.h"
#include "tests/app/Boxes.h"
#include "tests/app/ConfigFolder.h"

namespace tests {

// What stands around the form: nothing, so that it is a window by itself, or the program's window.
enum class Around { Nothing, Window };

// A button that prints a report, and what the tool is called with for the same one.
struct ButtonCommand {
  const char* Button = "";
  QStringList ToolArguments;
};

// The form of the program on a desktop of its own, worked by mouse and keys. By itself, unless
// VANTREL_TEST_AROUND=window asks for the whole window, in which its rules are the same.
class FormTest : public ::testing::Test {
 protected:
  FormTest();
  explicit FormTest(Around around);

  // Starts the program with that command line and shows its window.
  void Start(const std::string& commandLine = {});
  void Start(const sample::Trial& trial) { Start(Write(trial)); }

  // Writes a trial into the test's folder and returns its path.
  std::string Write(const sample::Trial& trial, const std::string& name = "trial.c3d");
  std::string WriteSampleWalk() { return Write(SampleTrial(), "walk.c3d"); }
  static const sample::Trial& SampleTrial();

  // Drops a file on the form as a file manager does.
  void Drop(const std::string& path);
  static void DropOn(QWidget& target, const std::string& path);
  static void DropOn(QWidget& target, const std::vector<std::string>& paths);

  QPushButton* Button(const char* name) { return Control<QPushButton>(name); }
  QLineEdit* Box(const char* name) { return Control<QLineEdit>(name); }
  void Click(const char* button);
  // Types into a text box, in place of what it holds.
  void Type(const char* box, const QString& text);
  void Tick(bool ticked);

  // The node at the end of a path of texts; fails the test where there is none.
  QTreeWidgetItem* Node(const QStringList& path);
  void ClickNode(const QStringList& path);
  void DoubleClickNode(const QStringList& path);
  QStringList TextBoxes();

  app::OutputPane* Pane() { return Control<app::OutputPane>("txt"); }
  app::NodeTree* Tree() { return Control<app::NodeTree>("tre"); }
  app::CaptionCheckBox* CheckBox() { return Control<app::CaptionCheckBox>("chkOut"); }
  std::string PaneText() { return Pane()->Text(); }

  std::filesystem::path DesktopFile() const { return folder_ / "Desktop" / "Vantrel_Output.txt"; }

  template <typename Widget>
  Widget* Control(const char* name) {
    auto* control = form_.findChild<Widget*>(QString::fromLatin1(name));
    if (control == nullptr) throw std::out_of_range(name);
    return control;
  }

  TemporaryFolder folder_;
  ConfigFolder config_{(folder_ / "config").string()};
  modVantrel::FileState state_;
  std::unique_ptr<QWidget> top_;  // the form itself or the window around it
  app::frmVantrel& form_;
  Boxes boxes_;

 private:
  QPoint ShowNode(const QStringList& path);
};

// Runs vantrel-report with these arguments to its end; fails the test, and says why, where that
// does not come.
void RunTool(QProcess& tool, const QStringList& arguments);

// What vantrel-report prints for these arguments; fails the test where it ends with a failure.
std::string ToolOutput(const QStringList& arguments);

// `text` with every CR LF as LF; fails the test where a line ends otherwise.
std::string WithoutCarriageReturns(const std::string& text);

}  // namespace tests
