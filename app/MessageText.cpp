// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MessageText.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextDocument>

namespace app {

namespace {

// A label to a screen reader, which reads the labels of a box when it comes up.
QAccessibleInterface* MakeTextReader(const QString& /*className*/, QObject* object) {
  auto* text = qobject_cast<MessageText*>(object);
  return text == nullptr ? nullptr : new QAccessibleWidget(text, QAccessible::StaticText);
}

void InstallReader() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeTextReader);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace

MessageText::MessageText(const QString& text, QWidget* parent) : QTextEdit(parent) {
  InstallReader();
  setObjectName(QStringLiteral("lblMessage"));
  setAccessibleName(text);
  setFrameStyle(QFrame::NoFrame);
  viewport()->setAutoFillBackground(false);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setFocusPolicy(Qt::ClickFocus);  // the first button keeps the keys
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(0);
  QPalette colours = palette();
  colours.setColor(QPalette::Text, colours.color(QPalette::WindowText));
  setPalette(colours);
  setPlainText(text);
}

void MessageText::FitWithin(QSize most) {
  ensurePolished();
  const int longestLine = fontMetrics().size(0, toPlainText()).width();
  int width = std::min(longestLine + 1, most.width());
  // The view lays its own document out by the size that it has so far.
  const std::unique_ptr<QTextDocument> measured(document()->clone());
  measured->setDefaultFont(font());
  measured->setTextWidth(width);
  int height = static_cast<int>(std::ceil(measured->size().height()));
  if (height > most.height()) {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    width += verticalScrollBar()->sizeHint().width();
    height = most.height();
  }
  setFixedSize(width, height);
}

void MessageText::keyPressEvent(QKeyEvent* event) {
  // With nothing selected the box copies all of it.
  if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection()) {
    event->ignore();
  } else {
    QTextEdit::keyPressEvent(event);
  }
}

}  // namespace app
