// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/OutputPaneReader.h"

#include "app/OutputPane.h"

namespace app {

namespace {

constexpr long kLongestHandedOver = 65'536;  // bytes

QAccessibleInterface* MakePaneReader(const QString& /*className*/, QObject* object) {
  auto* pane = qobject_cast<OutputPane*>(object);
  return pane == nullptr ? nullptr : new OutputPaneReader(pane);
}

}  // namespace

OutputPaneReader::OutputPaneReader(OutputPane* pane)
    : QAccessibleWidget(pane, QAccessible::EditableText), pane_(pane) {}

void OutputPaneReader::Install() {
  static const bool installed = [] {
    QAccessible::installFactory(MakePaneReader);
    return true;
  }();
  static_cast<void>(installed);
}

void OutputPaneReader::TextWasAppended(OutputPane& pane, long position) {
  if (!QAccessible::isActive() || pane.length() - position > kLongestHandedOver) return;
  const QString text = pane.TextBetween(position, pane.length());
  QAccessibleTextInsertEvent event(&pane, pane.OffsetOf(position), text);
  QAccessible::updateAccessibility(&event);
}

void OutputPaneReader::TextWillBeCleared(OutputPane& pane) {
  if (!QAccessible::isActive() || pane.length() == 0) return;
  if (pane.length() > kLongestHandedOver) return;
  QAccessibleTextRemoveEvent event(&pane, 0, pane.TextBetween(0, pane.length()));
  QAccessible::updateAccessibility(&event);
}

void OutputPaneReader::SelectionWasMoved(OutputPane& pane) {
  if (!QAccessible::isActive()) return;
  const long caret = pane.SendScintilla(QsciScintilla::SCI_GETCURRENTPOS);
  QAccessibleTextCursorEvent event(&pane, pane.OffsetOf(caret));
  QAccessible::updateAccessibility(&event);
}

QAccessible::State OutputPaneReader::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.readOnly = true;
  state.multiLine = true;
  state.selectableText = true;
  return state;
}

void* OutputPaneReader::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

void OutputPaneReader::selection(int selectionIndex, int* startOffset, int* endOffset) const {
  const bool selected = selectionIndex == 0 && pane_->hasSelectedText();
  *startOffset =
      selected ? pane_->OffsetOf(pane_->SendScintilla(QsciScintilla::SCI_GETSELECTIONSTART)) : 0;
  *endOffset =
      selected ? pane_->OffsetOf(pane_->SendScintilla(QsciScintilla::SCI_GETSELECTIONEND)) : 0;
}

int OutputPaneReader::selectionCount() const { return pane_->hasSelectedText() ? 1 : 0; }

void OutputPaneReader::addSelection(int startOffset, int endOffset) {
  setSelection(0, startOffset, endOffset);
}

void OutputPaneReader::removeSelection(int /*selectionIndex*/) {
  setCursorPosition(cursorPosition());
}

void OutputPaneReader::setSelection(int /*selectionIndex*/, int startOffset, int endOffset) {
  pane_->SendScintilla(QsciScintilla::SCI_SETSEL,
                       static_cast<unsigned long>(pane_->PositionOf(startOffset)),
                       pane_->PositionOf(endOffset));
}

int OutputPaneReader::cursorPosition() const {
  return pane_->OffsetOf(pane_->SendScintilla(QsciScintilla::SCI_GETCURRENTPOS));
}

void OutputPaneReader::setCursorPosition(int position) {
  pane_->SendScintilla(QsciScintilla::SCI_GOTOPOS,
                       static_cast<unsigned long>(pane_->PositionOf(position)));
}

QString OutputPaneReader::text(int startOffset, int endOffset) const {
  return pane_->TextBetween(pane_->PositionOf(startOffset), pane_->PositionOf(endOffset));
}

QString OutputPaneReader::textAtOffset(int offset, QAccessible::TextBoundaryType boundaryType,
                                       int* startOffset, int* endOffset) const {
  if (boundaryType != QAccessible::LineBoundary && boundaryType != QAccessible::ParagraphBoundary) {
    return QAccessibleTextInterface::textAtOffset(offset, boundaryType, startOffset, endOffset);
  }
  // -1 stands for the end of the text, -2 for the caret.
  constexpr int kCaret = -2;
  if (offset < 0) offset = offset == kCaret ? cursorPosition() : characterCount();
  const int line = static_cast<int>(
      pane_->SendScintilla(QsciScintilla::SCI_LINEFROMPOSITION,
                           static_cast<unsigned long>(pane_->PositionOf(offset)), 0L));
  const long start = pane_->positionFromLineIndex(line, 0);
  const long end = start + pane_->lineLength(line);
  *startOffset = pane_->OffsetOf(start);
  *endOffset = pane_->OffsetOf(end);
  return pane_->TextBetween(start, end);
}

int OutputPaneReader::characterCount() const { return pane_->OffsetOf(pane_->length()); }

QRect OutputPaneReader::characterRect(int offset) const {
  const long position = pane_->PositionOf(offset);
  const auto at = [&](unsigned message, long where) {
    return static_cast<int>(pane_->SendScintilla(message, 0UL, where));
  };
  const QPoint corner(at(QsciScintilla::SCI_POINTXFROMPOSITION, position),
                      at(QsciScintilla::SCI_POINTYFROMPOSITION, position));
  const QSize size(at(QsciScintilla::SCI_POINTXFROMPOSITION, position + 1) - corner.x(),
                   pane_->textHeight(0));
  return {pane_->viewport()->mapToGlobal(corner), size};
}

int OutputPaneReader::offsetAtPoint(const QPoint& point) const {
  const QPoint place = pane_->viewport()->mapFromGlobal(point);
  const long position =
      pane_->SendScintilla(QsciScintilla::SCI_POSITIONFROMPOINTCLOSE,
                           static_cast<unsigned long>(place.x()), long{place.y()});
  return position < 0 ? -1 : pane_->OffsetOf(position);
}

void OutputPaneReader::scrollToSubstring(int startIndex, int endIndex) {
  pane_->SendScintilla(QsciScintilla::SCI_SCROLLRANGE,
                       static_cast<unsigned long>(pane_->PositionOf(endIndex)),
                       pane_->PositionOf(startIndex));
}

QString OutputPaneReader::attributes(int /*offset*/, int* startOffset, int* endOffset) const {
  *startOffset = 0;
  *endOffset = characterCount();
  return {};
}

}  // namespace app
