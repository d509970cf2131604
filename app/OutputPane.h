// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <Qsci/qsciscintilla.h>

namespace app {

// The size of the pane's letters, in points, as long as nobody has zoomed.
inline constexpr int kPaneLetters = 10;

// What came of a search; GoneRound: found after the search went on from the other end of the text.
enum class Found { Nowhere, Ahead, GoneRound };

// The read-only pane that shows the reports: one fixed-pitch font, lines never wrapped, colours of
// the desktop's theme. Texts go in and out as UTF-8.
class OutputPane : public QsciScintilla {
  Q_OBJECT

 public:
  explicit OutputPane(QWidget* parent);

  // Empties the pane and has it repaint at once.
  void Empty();

  // Adds `text` at the end in one piece and leaves the caret behind it. The view stays where it is,
  // so that a report is seen from its first line.
  void Append(std::string_view text);

  // Lets `text` be all that the pane shows.
  void ShowText(std::string_view text);

  // All of its text, lines ended as they were handed over.
  std::string Text() const;

  // Selects the next place of `text` behind the selection, or the one before it, with lines around
  // it where there are any; goes round at the end. Without a selection it starts at the caret, and
  // where that still stands behind a report, at the first line that is seen. Letters match in both
  // cases. The selection stays where there is no such place.
  Found Find(std::string_view text, bool forward);

  // The selected text. Where it begins within a line and goes on below it, blanks take the place of
  // that line's start, so that columns stay below each other.
  QString SelectedColumns() const;

  // The characters of the longest line, a tab taken for one.
  long LongestLine() const { return longestLine_; }

  // Where the selection is seen, from its start to its end or to the end of the first line, in the
  // coordinates of the viewport; empty without a selection.
  QRect SelectionPlace() const;

  // Positions count bytes, offsets UTF-16 units, both from 0. One outside the text stands for its
  // nearest end.
  int OffsetOf(long position) const;
  long PositionOf(int offset) const;
  QString TextBetween(long start, long end) const;

 signals:
  // What was found and selected so far is gone, for the text is another one.
  void TextReplaced();

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void TakeColours();
  void SetScrollWidth();
  long SearchStart(bool forward) const;
  bool FindBetween(std::string_view text, long start, long end);
  void Select(long start, long end);

  long longestLine_ = 0;  // characters
  bool ascii_ = true;     // positions are offsets
};

// The font of the pane: Courier New, or a face of the same widths where that is missing.
QString PaneFontFamily();

}  // namespace app
