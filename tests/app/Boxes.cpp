// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/Boxes.h"

#include <algorithm>

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QWindow>
#include <gtest/gtest.h>

namespace tests {

namespace {

constexpr int kPatienceWithAnswers = 10000;  // milliseconds

QList<QPushButton*> ButtonsOf(const QDialog& dialog) {
  QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>();
  std::ranges::sort(buttons, {}, [](const QPushButton* button) { return button->x(); });
  return buttons;
}

SeenBox Described(const QMessageBox& box) {
  SeenBox seen{box.windowTitle(), box.text(), box.icon(), {}};
  for (const QPushButton* button : ButtonsOf(box)) seen.Buttons << button->text().remove(u'&');
  return seen;
}

void ClickButton(QDialog& dialog, const QString& caption) {
  for (QPushButton* button : ButtonsOf(dialog)) {
    if (button->text().remove(u'&') == caption) {
      QTest::mouseClick(button, Qt::LeftButton);
      return;
    }
  }
  ADD_FAILURE() << "no button '" << caption.toStdString() << "'";
  dialog.reject();
}

}  // namespace

Boxes::Boxes() {
  QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
  constexpr int kInterval = 5;  // milliseconds
  timer_.start(kInterval);
}

Boxes::~Boxes() { EXPECT_TRUE(answers_.empty()) << answers_.size() << " dialogs did not come up"; }

void Boxes::ExpectAndClick(const QString& caption) {
  Expect([caption](QDialog& dialog) { ClickButton(dialog, caption); });
}

void Boxes::ExpectAndPress(Qt::Key key) {
  Expect([key](QDialog& dialog) { QTest::keyClick(&dialog, key); });
}

void Boxes::Look() {
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible()) return;
  // What a user does to a window that has not come up yet is lost.
  if (!dialog->isActiveWindow() || !dialog->windowHandle()->isExposed()) return;
  if (dialog == answered_) {
    if (!sinceAnswer_.hasExpired(kPatienceWithAnswers)) return;
    ADD_FAILURE() << "the dialog '" << dialog->windowTitle().toStdString() << "' did not close";
    dialog->done(QDialog::Rejected);
    return;
  }
  answered_ = dialog;
  sinceAnswer_.start();
  if (const auto* box = qobject_cast<QMessageBox*>(dialog)) seen_.push_back(Described(*box));
  if (answers_.empty()) {
    ADD_FAILURE() << "nobody expected the dialog '" << dialog->windowTitle().toStdString() << "' "
                  << (seen_.empty() ? std::string() : seen_.back().Text.toStdString());
    dialog->done(QDialog::Rejected);
    return;
  }
  const Answer answer = std::move(answers_.front());
  answers_.pop_front();
  answer(*dialog);
}

}  // namespace tests
