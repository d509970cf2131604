// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/OutputPane.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>

#include "app/FoldedSearch.h"
#include "app/OutputPaneReader.h"

namespace app {

namespace {

constexpr int kLeftEdge = 4;  // pixels between the frame and the text
constexpr unsigned long kDefaultStyle = QsciScintillaBase::STYLE_DEFAULT;

// Lets the pane's text be changed while it lives.
class Writable {
 public:
  explicit Writable(QsciScintilla& pane) : pane_(pane) { pane_.setReadOnly(false); }
  Writable(const Writable&) = delete;
  Writable& operator=(const Writable&) = delete;
  ~Writable() { pane_.setReadOnly(true); }

 private:
  QsciScintilla& pane_;
};

// The characters of the longest line, a tab taken for one.
long LongestLineOf(std::string_view text) {
  long longest = 0;
  long length = 0;
  for (const char byte : text) {
    constexpr unsigned kFollowsMask = 0xC0;
    constexpr unsigned kFollows = 0x80;
    if (byte == '\n') {
      longest = std::max(longest, std::exchange(length, 0));
    } else if ((static_cast<unsigned char>(byte) & kFollowsMask) != kFollows) {
      ++length;
    }
  }
  return std::max(longest, length);
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char byte) { return static_cast<signed char>(byte) >= 0; });
}

bool MovesThroughLines(const QKeyEvent& event) {
  if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != 0) return false;
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down ||
         event.key() == Qt::Key_PageUp || event.key() == Qt::Key_PageDown;
}

}  // namespace

QString PaneFontFamily() {
  const QStringList families = QFontDatabase::families();
  for (const auto& family : {QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
                             QStringLiteral("Cousine")}) {
    if (families.contains(family)) return family;
  }
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
}

OutputPane::OutputPane(QWidget* parent) : QsciScintilla(parent) {
  setUtf8(true);
  setReadOnly(true);
  setWrapMode(WrapNone);
  setEolMode(EolUnix);
  for (int margin = 0; margin < margins(); ++margin) setMarginWidth(margin, 0);
  SendScintilla(SCI_SETMARGINLEFT, 0UL, long{kLeftEdge});
  setScrollWidthTracking(false);
  setAcceptDrops(false);  // a file dropped here is for the form
  viewport()->setAcceptDrops(false);
  SendScintilla(SCI_SETUNDOCOLLECTION, 0UL);
  // The editor would tell screen readers of every change a second time, and hand over whole
  // listings.
  SendScintilla(SCI_SETMODEVENTMASK, 0UL);
  SendScintilla(SCI_SETRECTANGULARSELECTIONMODIFIER, static_cast<unsigned long>(SCMOD_CTRL));
  SendScintilla(SCI_STYLESETFONT, std::uintptr_t{kDefaultStyle},
                PaneFontFamily().toUtf8().constData());
  SendScintilla(SCI_STYLESETSIZE, kDefaultStyle, long{kPaneLetters});
  connect(this, &QsciScintilla::SCN_ZOOM, this, &OutputPane::SetScrollWidth);
  connect(this, &QsciScintilla::SCN_UPDATEUI, this, [this](int changes) {
    if ((changes & SC_UPDATE_SELECTION) != 0) OutputPaneReader::SelectionWasMoved(*this);
  });
  OutputPaneReader::Install();
  TakeColours();
  SetScrollWidth();
}

void OutputPane::TakeColours() {
  const QPalette colours = palette();
  SendScintilla(SCI_STYLESETFORE, kDefaultStyle, colours.color(QPalette::Text));
  SendScintilla(SCI_STYLESETBACK, kDefaultStyle, colours.color(QPalette::Base));
  SendScintilla(SCI_STYLECLEARALL);
  setCaretForegroundColor(colours.color(QPalette::Text));
  setSelectionForegroundColor(colours.color(QPalette::HighlightedText));
  setSelectionBackgroundColor(colours.color(QPalette::Highlight));
}

void OutputPane::changeEvent(QEvent* event) {
  QsciScintilla::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) TakeColours();
}

void OutputPane::Empty() {
  ShowText({});
  viewport()->repaint();
}

void OutputPane::Append(std::string_view text) {
  const long start = length();
  {
    const Writable writable(*this);
    SendScintilla(SCI_APPENDTEXT, std::uintptr_t{text.size()}, text.data());
  }
  SendScintilla(SCI_SETEMPTYSELECTION, static_cast<unsigned long>(length()));
  longestLine_ = std::max(longestLine_, LongestLineOf(text));
  SetScrollWidth();
  ascii_ = ascii_ && IsAscii(text);
  if (!text.empty()) OutputPaneReader::TextWasAppended(*this, start);
}

void OutputPane::SetScrollWidth() {
  // Widths are whole pixels, so one character alone would say too much or too little.
  static const std::string kSample(100, '0');
  const long sampleWidth =
      SendScintilla(SCI_TEXTWIDTH, std::uintptr_t{kDefaultStyle}, kSample.c_str());
  const long width = longestLine_ * sampleWidth / static_cast<long>(kSample.size());
  SendScintilla(SCI_SETSCROLLWIDTH, static_cast<unsigned long>(width + kLeftEdge));
}

void OutputPane::ShowText(std::string_view text) {
  OutputPaneReader::TextWillBeCleared(*this);
  {
    const Writable writable(*this);
    SendScintilla(SCI_CLEARALL);
  }
  longestLine_ = 0;
  ascii_ = true;
  SendScintilla(SCI_SETXOFFSET, 0UL);
  Append(text);
  emit TextReplaced();
}

std::string OutputPane::Text() const {
  const auto* text = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return {text, static_cast<std::size_t>(length())};
}

int OutputPane::OffsetOf(long position) const {
  const long inside = std::clamp(position, 0L, long{length()});
  if (ascii_) return static_cast<int>(inside);
  return static_cast<int>(SendScintilla(SCI_COUNTCODEUNITS, 0UL, inside));
}

long OutputPane::PositionOf(int offset) const {
  if (offset <= 0) return 0;
  if (ascii_) return std::min(offset, length());
  // 0 comes back where the text ends before the offset.
  const long position = SendScintilla(SCI_POSITIONRELATIVECODEUNITS, 0UL, long{offset});
  return position > 0 ? position : length();
}

QString OutputPane::TextBetween(long start, long end) const {
  if (start >= end) return {};
  const auto* text = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return QString::fromUtf8(text + start, end - start);
}

void OutputPane::Select(long start, long end) {
  constexpr unsigned long kLinesAround = 3;
  constexpr auto kKeepAway =
      static_cast<unsigned long>(CARET_SLOP) | static_cast<unsigned long>(CARET_STRICT);
  SendScintilla(SCI_SETYCARETPOLICY, kKeepAway | CARET_EVEN, long{kLinesAround});
  SendScintilla(SCI_SETSEL, static_cast<unsigned long>(start), end);
  SendScintilla(SCI_SETYCARETPOLICY, static_cast<unsigned long>(CARET_EVEN), 0L);
}

bool OutputPane::FindBetween(std::string_view text, long start, long end) {
  if (!ascii_) {
    const auto* shown = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
    const auto place = FindFolded({shown, static_cast<std::size_t>(length())}, text, start, end);
    if (place) Select(place->Start, place->End);
    return place.has_value();
  }
  // The editor's own search is the quicker one, and matches the cases of these letters.
  SendScintilla(SCI_SETTARGETSTART, start);
  SendScintilla(SCI_SETTARGETEND, end);
  if (SendScintilla(SCI_SEARCHINTARGET, std::uintptr_t{text.size()}, text.data()) < 0) {
    return false;
  }
  Select(SendScintilla(SCI_GETTARGETSTART), SendScintilla(SCI_GETTARGETEND));
  return true;
}

long OutputPane::SearchStart(bool forward) const {
  if (hasSelectedText()) {
    return SendScintilla(forward ? SCI_GETSELECTIONEND : SCI_GETSELECTIONSTART);
  }
  const long caret = SendScintilla(SCI_GETCURRENTPOS);
  if (!forward || caret < length()) return caret;
  return SendScintilla(SCI_POSITIONFROMLINE, static_cast<unsigned long>(firstVisibleLine()));
}

Found OutputPane::Find(std::string_view text, bool forward) {
  if (text.empty()) return Found::Nowhere;
  SendScintilla(SCI_SETSEARCHFLAGS, 0UL);
  // A range that runs backwards is searched backwards.
  const long ahead = forward ? length() : 0;
  if (FindBetween(text, SearchStart(forward), ahead)) return Found::Ahead;
  return FindBetween(text, forward ? 0 : length(), ahead) ? Found::GoneRound : Found::Nowhere;
}

QRect OutputPane::SelectionPlace() const {
  if (!hasSelectedText()) return {};
  const auto at = [this](unsigned message, long position) {
    return static_cast<int>(SendScintilla(message, 0UL, position));
  };
  const long start = SendScintilla(SCI_GETSELECTIONSTART);
  const long line = SendScintilla(SCI_LINEFROMPOSITION, static_cast<unsigned long>(start), 0L);
  const long end =
      std::min(SendScintilla(SCI_GETSELECTIONEND),
               SendScintilla(SCI_GETLINEENDPOSITION, static_cast<unsigned long>(line)));
  const QPoint corner(at(SCI_POINTXFROMPOSITION, start), at(SCI_POINTYFROMPOSITION, start));
  return {corner, QSize(at(SCI_POINTXFROMPOSITION, end) - corner.x(), textHeight(0))};
}

QString OutputPane::SelectedColumns() const {
  QString text = selectedText();
  if (SendScintilla(SCI_SELECTIONISRECTANGLE) != 0 || !text.contains(u'\n')) return text;
  const auto start = static_cast<unsigned long>(SendScintilla(SCI_GETSELECTIONSTART));
  return QString(static_cast<qsizetype>(SendScintilla(SCI_GETCOLUMN, start)), u' ') + text;
}

void OutputPane::keyPressEvent(QKeyEvent* event) {
  // After a report the caret stands at its end and the view at its start: moving on from the caret
  // would jump, so it comes into view first.
  if (MovesThroughLines(*event) && !hasSelectedText()) SendScintilla(SCI_MOVECARETINSIDEVIEW);
  QsciScintilla::keyPressEvent(event);
}

void OutputPane::mousePressEvent(QMouseEvent* event) {
  // A block is drawn with Ctrl, which every desktop leaves to its programs, and with Alt. The
  // editor takes one of them, another one on each system.
  const Qt::KeyboardModifiers ofBlocks = Qt::ControlModifier | Qt::AltModifier;
  const bool isBlock = (event->modifiers() & ofBlocks) != 0;
  const Qt::KeyboardModifiers keys = isBlock ? ofBlocks : event->modifiers();
  QMouseEvent press(event->type(), event->position(), event->scenePosition(),
                    event->globalPosition(), event->button(), event->buttons(), keys,
                    event->pointingDevice());
  QsciScintilla::mousePressEvent(&press);
}

}  // namespace app
