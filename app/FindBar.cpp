// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FindBar.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>
#include <QToolButton>

#include "app/OutputPane.h"
#include "app/TextBox.h"

namespace app {

namespace {

constexpr int kFindWidth = 180;
constexpr int kLeastFindWidth = 60;

QToolButton* AddButton(QHBoxLayout& row, const QString& objectName, Qt::ArrowType arrow,
                       const QString& text, const QString& hint) {
  auto* button = new QToolButton;
  button->setObjectName(objectName);
  button->setAutoRaise(true);
  button->setArrowType(arrow);
  button->setText(text);
  button->setToolTip(hint);
  button->setAccessibleName(hint);
  button->setFocusPolicy(Qt::TabFocus);
  row.addWidget(button);
  return button;
}

// What there is to say about a search.
QString ResultText(Found found, bool forward) {
  if (found == Found::Nowhere) return FindBar::tr("not found");
  if (found == Found::Ahead) return {};
  return forward ? FindBar::tr("continued from the start") : FindBar::tr("continued from the end");
}

}  // namespace

FindBar::FindBar(OutputPane* pane)
    : QFrame(pane),
      pane_(pane),
      txtFind_(new TextBox),
      lblFindResult_(new QLabel),
      escape_(new QShortcut(Qt::Key_Escape, pane->window())) {
  setObjectName(QStringLiteral("findBar"));
  setFrameStyle(QFrame::StyledPanel | QFrame::Raised);
  setAutoFillBackground(true);
  setCursor(Qt::ArrowCursor);
  auto* row = new QHBoxLayout(this);
  constexpr int kMargin = 4;
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  txtFind_->setObjectName(QStringLiteral("txtFind"));
  txtFind_->setPlaceholderText(tr("Find"));
  txtFind_->setAccessibleName(tr("Find"));
  lblFindResult_->setObjectName(QStringLiteral("lblFindResult"));
  row->addWidget(txtFind_);
  row->addWidget(lblFindResult_);
  lblFindResult_->hide();
  auto* previous = AddButton(*row, QStringLiteral("cmdFindPrevious"), Qt::UpArrow, {},
                             tr("Find previous (Shift+F3)"));
  auto* next =
      AddButton(*row, QStringLiteral("cmdFindNext"), Qt::DownArrow, {}, tr("Find next (F3)"));
  auto* close = AddButton(*row, QStringLiteral("cmdFindClose"), Qt::NoArrow,
                          QStringLiteral("\u00d7"), tr("Close (Esc)"));
  connect(previous, &QToolButton::clicked, this, &FindBar::FindPrevious);
  connect(next, &QToolButton::clicked, this, &FindBar::FindNext);
  connect(close, &QToolButton::clicked, this, &FindBar::Close);
  connect(txtFind_, &QLineEdit::textEdited, lblFindResult_, &QLabel::hide);
  // What was said of another text is not true of this one.
  connect(pane, &OutputPane::TextReplaced, lblFindResult_, &QLabel::hide);
  connect(pane, &QsciScintilla::SCN_ZOOM, this, [this] {
    if (isVisible()) TakePlace();
  });
  pane->installEventFilter(this);
  connect(escape_, &QShortcut::activated, this, &FindBar::Close);
  escape_->setEnabled(false);
  hide();
}

void FindBar::Open() {
  const QString selected = pane_->selectedText();
  if (!selected.isEmpty() && !selected.contains(u'\n')) txtFind_->setText(selected);
  lblFindResult_->hide();
  show();
  raise();
  TakePlace();
  txtFind_->setFocus();
  txtFind_->selectAll();
}

void FindBar::Close() {
  hide();
  pane_->setFocus();
}

void FindBar::Find(bool forward) {
  const QByteArray wanted = txtFind_->text().toUtf8();
  if (wanted.isEmpty()) {
    Open();
    return;
  }
  const Found found =
      pane_->Find({wanted.constData(), static_cast<std::size_t>(wanted.size())}, forward);
  Say(ResultText(found, forward));
  TakePlace();
}

// A bar that is closed is shown to say it, of this text: opening would take over the selection.
void FindBar::Say(const QString& result) {
  if (!result.isEmpty()) show();
  lblFindResult_->setText(result);
  lblFindResult_->setVisible(!result.isEmpty());
}

void FindBar::FitInto(int room) {
  txtFind_->setFixedWidth(kFindWidth);
  lblFindResult_->setWordWrap(false);
  adjustSize();
  if (width() <= room) return;
  txtFind_->setFixedWidth(std::max(kLeastFindWidth, kFindWidth - (width() - room)));
  adjustSize();
  if (width() <= room) return;
  lblFindResult_->setWordWrap(true);
  const int fitting = std::max(room, layout()->totalMinimumSize().width());
  resize(fitting, layout()->totalHeightForWidth(fitting));
}

void FindBar::TakePlace() {
  const QRect inside = pane_->viewport()->geometry();
  FitInto(inside.width());
  // Where it cannot fit, its end is cut, not what is typed.
  const QPoint upperCorner(std::max(inside.left(), inside.right() + 1 - width()), inside.top());
  const QPoint lowerCorner(upperCorner.x(), inside.bottom() + 1 - height());
  const QRect selected = pane_->SelectionPlace().translated(inside.topLeft());
  move(QRect(upperCorner, size()).intersects(selected) ? lowerCorner : upperCorner);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (watched == pane_ && event->type() == QEvent::Resize && isVisible()) TakePlace();
  return QFrame::eventFilter(watched, event);
}

void FindBar::showEvent(QShowEvent* event) {
  QFrame::showEvent(event);
  escape_->setEnabled(true);
}

void FindBar::hideEvent(QHideEvent* event) {
  QFrame::hideEvent(event);
  escape_->setEnabled(false);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      // A button of the bar is pressed by Enter as by the space bar.
      if (auto* button = qobject_cast<QToolButton*>(focusWidget())) {
        button->click();
        break;
      }
      Find(!event->modifiers().testFlag(Qt::ShiftModifier));
      break;
    default:
      QFrame::keyPressEvent(event);
  }
}

}  // namespace app
