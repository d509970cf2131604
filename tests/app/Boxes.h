// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <deque>
#include <functional>
#include <vector>

#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QTimer>

namespace tests {

struct SeenBox {
  QString Title;
  QString Text;
  QMessageBox::Icon Icon = QMessageBox::NoIcon;
  QStringList Buttons;  // from left to right
};

// Plays the user in front of modal dialogs: each one that comes up is answered by the next answer
// in the row. A dialog that nobody expected fails the test and is closed.
class Boxes {
 public:
  using Answer = std::function<void(QDialog&)>;

  Boxes();
  Boxes(const Boxes&) = delete;
  Boxes& operator=(const Boxes&) = delete;
  ~Boxes();

  void Expect(Answer answer) { answers_.push_back(std::move(answer)); }
  // Clicks the button of that caption with the mouse.
  void ExpectAndClick(const QString& caption);
  void ExpectAndPress(Qt::Key key);

  // The message boxes so far, in order.
  const std::vector<SeenBox>& Seen() const { return seen_; }

 private:
  void Look();

  QTimer timer_;
  std::deque<Answer> answers_;
  std::vector<SeenBox> seen_;
  QPointer<QWidget> answered_;
  QElapsedTimer sinceAnswer_;
};

}  // namespace tests
