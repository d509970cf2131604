// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/StatusLine.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QTextLayout>

#include "app/ToolTip.h"

namespace app {

namespace {

constexpr int kEdge = 2;  // left and right of the text

// What of `text` stands in the first line of that width, broken between words.
qsizetype FirstLineOf(const QString& text, const QFont& font, int width) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(width);
  layout.endLayout();
  return line.textLength();
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  Tell();
}

void StatusLine::Say(const StatusText& text) {
  text_ = text;
  Tell();
}

void StatusLine::Remark(const QString& sentence) {
  remark_ = sentence;
  Tell();
}

void StatusLine::Tell() {
  const QString all =
      remark_.isEmpty() ? text_.Sentence : QStringLiteral("%1\n%2").arg(remark_, text_.Sentence);
  setText(all);
  setAccessibleName(all);
  setToolTip(WrappedToolTip(all));
  setEnabled(!text_.Counts.isEmpty());
  update();
}

QStringList StatusLine::RemarkLines() const {
  const int room = width() - 2 * kEdge;
  const qsizetype first = FirstLineOf(remark_, font(), room);
  return {remark_.left(first).trimmed(),
          fontMetrics().elidedText(remark_.mid(first), Qt::ElideRight, room)};
}

QStringList StatusLine::ShownLines() const {
  if (!remark_.isEmpty()) return RemarkLines();
  const QFontMetrics letters = fontMetrics();
  const int room = width() - 2 * kEdge;
  const QString between = QStringLiteral("  ");
  // The longest form that fits behind `start`, or the shortest one.
  const auto choose = [&](const QString& start, const QStringList& forms) {
    const auto fits = [&](const QString& form) {
      return letters.horizontalAdvance(start + form) <= room;
    };
    const auto longest = std::ranges::find_if(forms, fits);
    return longest == forms.end() ? forms.last() : *longest;
  };
  if (text_.Counts.isEmpty()) return {letters.elidedText(text_.Name, Qt::ElideMiddle, room)};
  const QString extent = between + choose(text_.Name + between, text_.Extent);
  const int forName = std::max(0, room - letters.horizontalAdvance(extent));
  return {letters.elidedText(text_.Name, Qt::ElideMiddle, forName) + extent,
          choose({}, text_.Counts)};
}

void StatusLine::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
    QAbstractButton::keyPressEvent(event);
  } else if (!event->isAutoRepeat()) {
    click();
  }
}

void StatusLine::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void StatusLine::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  const QStringList lines = ShownLines();
  const int height = this->height() / static_cast<int>(std::max<qsizetype>(1, lines.size()));
  QRect place(kEdge, 0, width() - 2 * kEdge, height);
  // Told as clearly without a file: nothing here is greyed out.
  painter.setPen(palette().color(QPalette::Active, QPalette::WindowText));
  for (const QString& line : lines) {
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, line);
    place.translate(0, height);
  }
  if (!hasFocus()) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.backgroundColor = palette().color(QPalette::Window);
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace app
