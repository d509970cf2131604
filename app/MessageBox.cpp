// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MessageBox.h"

#include <algorithm>
#include <memory>

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QScreen>

#include "app/MessageText.h"

namespace app {

namespace {

bool PressesButtons(int key) {
  return key == Qt::Key_Space || key == Qt::Key_Select || key == Qt::Key_Return ||
         key == Qt::Key_Enter || key == Qt::Key_Escape;
}

}  // namespace

MessageBox::MessageBox(Icon icon, const QString& title, const QString& text,
                       StandardButtons buttons, QWidget* owner)
    : QMessageBox(icon, title, text, buttons, owner) {
  setTextFormat(Qt::PlainText);
}

// The toolkit's own label breaks lines at blanks only. It stays as the holder of the text; a view
// of the same text takes its place.
void MessageBox::ShowTextInLines() {
  auto* label = findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (label == nullptr || findChild<MessageText*>() != nullptr) return;
  auto* view = new MessageText(text(), this);
  constexpr int kLineLength = 64;  // characters of middling width
  const QSize half = screen()->availableGeometry().size() / 2;
  view->FitWithin(
      {std::min(kLineLength * fontMetrics().averageCharWidth(), half.width()), half.height()});
  const std::unique_ptr<QLayoutItem> place(layout()->replaceWidget(label, view));
  label->hide();
}

void MessageBox::setVisible(bool visible) {
  // The box is placed by the size that it has before it is shown.
  if (visible) {
    ShowTextInLines();
    qApp->installEventFilter(this);
  } else {
    qApp->removeEventFilter(this);
  }
  QMessageBox::setVisible(visible);
}

// The box is modal, so that whatever key is pressed meanwhile is meant for it.
bool MessageBox::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QMessageBox::eventFilter(watched, event);
  const auto& key = dynamic_cast<const QKeyEvent&>(*event);
  return key.isAutoRepeat() && PressesButtons(key.key());
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    QApplication::clipboard()->setText(text());
  } else {
    QMessageBox::keyPressEvent(event);
  }
}

}  // namespace app
