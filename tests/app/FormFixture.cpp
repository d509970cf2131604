// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/FormFixture.h"

#include <regex>

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>
#include <QUrl>

#include "app/MainWindow.h"
#include "sample/SampleWalk.h"

namespace tests {

namespace {

Around AroundAsAsked() {
  return qEnvironmentVariable("VANTREL_TEST_AROUND") == QStringLiteral("window") ? Around::Window
                                                                                 : Around::Nothing;
}

std::unique_ptr<QWidget> MakeTop(modVantrel::FileState& state, Around around) {
  if (around == Around::Window) return std::make_unique<app::MainWindow>(state);
  return std::make_unique<app::frmVantrel>(state);
}

#ifdef _WIN32
QUrl UrlOf(const std::string& path) { return QUrl::fromLocalFile(QString::fromStdString(path)); }
#else
// Percent-encoded byte for byte, as file managers hand it over.
QUrl UrlOf(const std::string& path) {
  return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"));
}
#endif

app::frmVantrel& FormOf(QWidget& top) {
  auto* window = qobject_cast<app::MainWindow*>(&top);
  return window == nullptr ? dynamic_cast<app::frmVantrel&>(top) : window->Form();
}

}  // namespace

FormTest::FormTest() : FormTest(AroundAsAsked()) {}

FormTest::FormTest(Around around) : top_(MakeTop(state_, around)), form_(FormOf(*top_)) {
  std::filesystem::create_directory(folder_ / "Desktop");
  std::filesystem::create_directory(folder_ / "config");
  config_.NameDesktop((folder_ / "Desktop").string());
}

void FormTest::Start(const std::string& commandLine) {
  if (auto* window = qobject_cast<app::MainWindow*>(top_.get())) {
    window->Load(commandLine);
  } else {
    form_.Form_Load(commandLine);
  }
  if (form_.IsUnloaded()) return;
  top_->show();
  top_->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(top_.get()));
}

const sample::Trial& FormTest::SampleTrial() {
  static const sample::Trial trial = sample::SampleWalk().Build();
  return trial;
}

std::string FormTest::Write(const sample::Trial& trial, const std::string& name) {
  const auto path = folder_ / name;
  trial.WriteTo(path);
  return path.string();
}

void FormTest::Drop(const std::string& path) { DropOn(form_, path); }

void FormTest::DropOn(QWidget& target, const std::string& path) {
  DropOn(target, std::vector<std::string>{path});
}

void FormTest::DropOn(QWidget& target, const std::vector<std::string>& paths) {
  QMimeData data;
  QList<QUrl> urls;
  for (const std::string& path : paths) {
    urls << UrlOf(path);
  }
  data.setUrls(urls);
  const QPoint place(3, 3);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &drop);
  QApplication::processEvents();
}

void FormTest::Click(const char* button) { QTest::mouseClick(Button(button), Qt::LeftButton); }

void FormTest::Type(const char* box, const QString& text) {
  QLineEdit* edit = Box(box);
  QTest::mouseClick(edit, Qt::LeftButton);
  edit->selectAll();
  QTest::keyClick(edit, Qt::Key_Delete);
  QTest::keyClicks(edit, text);
}

void FormTest::Tick(bool ticked) {
  if (CheckBox()->isChecked() != ticked) {
    QTest::mouseClick(CheckBox(), Qt::LeftButton, {}, QPoint(8, CheckBox()->height() / 2));
  }
  ASSERT_EQ(CheckBox()->isChecked(), ticked);
}

QTreeWidgetItem* FormTest::Node(const QStringList& path) {
  QTreeWidgetItem* node = Tree()->invisibleRootItem();
  for (const QString& text : path) {
    QTreeWidgetItem* found = nullptr;
    for (int i = 0; i < node->childCount() && found == nullptr; ++i) {
      if (node->child(i)->text(0) == text) found = node->child(i);
    }
    if (found == nullptr) throw std::out_of_range(text.toStdString());
    node = found;
  }
  return node;
}

QPoint FormTest::ShowNode(const QStringList& path) {
  QTreeWidgetItem* node = Node(path);
  for (auto* parent = node->parent(); parent != nullptr; parent = parent->parent()) {
    parent->setExpanded(true);
  }
  Tree()->scrollToItem(node);
  const QRect row = Tree()->visualItemRect(node);
  return {row.left() + 4, row.center().y()};
}

void FormTest::ClickNode(const QStringList& path) {
  const QPoint place = ShowNode(path);
  QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, place);
}

void FormTest::DoubleClickNode(const QStringList& path) {
  const QPoint place = ShowNode(path);
  QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(Tree()->viewport(), Qt::LeftButton, {}, place);
}

QStringList FormTest::TextBoxes() {
  return {Box("txtGroup")->text(), Box("txtParam")->text(), Box("txtPointLabel")->text(),
          Box("txtAnalogLabel")->text()};
}

void RunTool(QProcess& tool, const QStringList& arguments) {
  tool.start(QStringLiteral(VANTREL_REPORT), arguments);
  ASSERT_TRUE(tool.waitForFinished()) << tool.errorString().toStdString();
}

std::string ToolOutput(const QStringList& arguments) {
  QProcess tool;
  RunTool(tool, arguments);
  EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().toStdString();
  return tool.readAllStandardOutput().toStdString();
}

std::string WithoutCarriageReturns(const std::string& text) {
  static const std::regex kOtherEnds("(^|[^\r])\n|\r([^\n]|$)");
  EXPECT_FALSE(std::regex_search(text, kOtherEnds)) << "a line does not end with CR LF";
  return std::regex_replace(text, std::regex("\r\n"), "\n");
}

}  // namespace tests
