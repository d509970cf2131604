// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/WindowFixture.h"

#include <QApplication>
#include <QTest>

namespace tests {

namespace {

// The letter that the caption gives to its entry.
QChar LetterOf(const QString& caption) {
  const qsizetype mark = caption.indexOf(u'&');
  return mark < 0 ? QChar() : caption.at(mark + 1);
}

}  // namespace

QAction* WindowTest::Entry(const char* name) {
  auto* entry = window_.findChild<QAction*>(QString::fromLatin1(name));
  if (entry == nullptr) throw std::out_of_range(name);
  return entry;
}

QMenu* WindowTest::MenuOf(const QAction* entry) {
  for (QAction* top : window_.menuBar()->actions()) {
    if (top->menu()->actions().contains(entry)) return top->menu();
  }
  throw std::out_of_range(entry->objectName().toStdString());
}

void WindowTest::Choose(QAction* entry) {
  QMenu* menu = MenuOf(entry);
  QMenuBar* bar = window_.menuBar();
  QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu->menuAction()).center());
  ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
}

void WindowTest::ChooseByArrows(QAction* entry) {
  QMenu* menu = MenuOf(entry);
  window_.activateWindow();  // a dialog may just have closed
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  QTest::keyClick(&window_, LetterOf(menu->title()).toLatin1(), Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
  for (int i = 0; menu->activeAction() != entry && i <= menu->actions().size(); ++i) {
    QTest::keyClick(menu, Qt::Key_Down);
  }
  ASSERT_EQ(menu->activeAction(), entry);
  QTest::keyClick(menu, Qt::Key_Return);
}

void WindowTest::PressKeysOf(const QAction* entry) {
  const QKeyCombination keys = entry->shortcut()[0];
  QWidget* focus = window_.focusWidget() != nullptr ? window_.focusWidget() : &window_;
  QTest::keyClick(focus, keys.key(), keys.keyboardModifiers());
}

void WindowTest::ResizeClient(QSize size) {
  window_.resize(window_.size() + size - form_.size());
  constexpr int kLateAnswers = 50;  // milliseconds; to earlier sizes, too
  QTest::qWait(kLateAnswers);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form_.size() == size; })) << "a smallest size holds it";
}

}  // namespace tests
