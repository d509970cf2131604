// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAccessible>
#include <QAccessibleWidget>

namespace app {

class OutputPane;

// What a screen reader sees of the output pane. The editor's own interface counts all characters
// before the caret at every step of scrolling, which makes a long listing slow for everybody; this
// one counts when it is asked, and not at all in a text of plain ASCII.
//
// Offsets are counted in UTF-16 units from 0.
class OutputPaneReader : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit OutputPaneReader(OutputPane* pane);

  // Makes panes be read by this class from now on.
  static void Install();

  // Tells a screen reader, where one is running, of the text that now stands from that position in
  // bytes to the end, that all text is about to go, or that the caret or the selection moved. A
  // text too long to be read out is not handed over; that the caret moved then says enough.
  static void TextWasAppended(OutputPane& pane, long position);
  static void TextWillBeCleared(OutputPane& pane);
  static void SelectionWasMoved(OutputPane& pane);

  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
  int selectionCount() const override;
  void addSelection(int startOffset, int endOffset) override;
  void removeSelection(int selectionIndex) override;
  void setSelection(int selectionIndex, int startOffset, int endOffset) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  using QAccessibleWidget::text;
  QString text(int startOffset, int endOffset) const override;
  QString textAtOffset(int offset, QAccessible::TextBoundaryType boundaryType, int* startOffset,
                       int* endOffset) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int startIndex, int endIndex) override;
  QString attributes(int offset, int* startOffset, int* endOffset) const override;

 private:
  OutputPane* pane_;
};

}  // namespace app
