// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/ManualWindow.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>
#include <QUrl>
#include <QVBoxLayout>

#include "app/ScreenRoom.h"
#include "app/TextBox.h"

namespace app {

namespace {

constexpr QSize kManualSize(820, 640);

// The name by which links lead to a heading: its letters and digits in lower case, with hyphens for
// blanks.
QString AnchorOf(const QString& heading) {
  QString anchor;
  for (const QChar letter : heading.toLower()) {
    if (letter.isLetterOrNumber() || letter == u'-' || letter == u'_') anchor += letter;
    if (letter == u' ') anchor += u'-';
  }
  return anchor;
}

QTextBlock HeadingOf(const QTextDocument& document, const QString& anchor) {
  QTextBlock block = document.begin();
  while (block.isValid() &&
         (block.blockFormat().headingLevel() == 0 || AnchorOf(block.text()) != anchor)) {
    block = block.next();
  }
  return block;
}

// Has the pictures of `document` fit into the window as it is opened.
void FitPictures(QTextDocument& document) {
  constexpr int kPictureWidth = 740;
  QTextCursor cursor(&document);
  for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      QTextImageFormat picture = piece.fragment().charFormat().toImageFormat();
      if (!picture.isValid()) continue;
      picture.setWidth(kPictureWidth);
      cursor.setPosition(piece.fragment().position());
      cursor.setPosition(piece.fragment().position() + piece.fragment().length(),
                         QTextCursor::KeepAnchor);
      cursor.setCharFormat(picture);
    }
  }
}

QString TextOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

}  // namespace

QString ManualText(const QString& page) {
  const QString installed = TextOf(QCoreApplication::applicationDirPath() +
                                   QStringLiteral("/../share/doc/vantrel/") + page);
  return installed.isEmpty() ? TextOf(QStringLiteral(":/docs/") + page) : installed;
}

ManualWindow::ManualWindow(const QString& markdown, QWidget* parent)
    : QWidget(parent, Qt::Window),
      browser_(new QTextBrowser),
      txtFind_(new TextBox),
      lblResult_(new QLabel) {
  setObjectName(QStringLiteral("ManualWindow"));
  setWindowTitle(tr("Manual"));
  OpenInTheMiddle(*this, kManualSize);
  auto* column = new QVBoxLayout(this);
  browser_->setObjectName(QStringLiteral("txtManual"));
  browser_->setAccessibleName(tr("Manual"));
  browser_->setOpenLinks(false);
  browser_->setSearchPaths({QStringLiteral(":/docs")});
  Show(markdown);
  connect(browser_, &QTextBrowser::anchorClicked, this, &ManualWindow::Follow);
  column->addWidget(browser_);
  column->addLayout(FindRow());
  AddKeys();
  // A text that was just set is otherwise shown from its end.
  browser_->moveCursor(QTextCursor::Start);
  browser_->setFocus();
}

QLayout* ManualWindow::FindRow() {
  auto* row = new QHBoxLayout;
  txtFind_->setObjectName(QStringLiteral("txtManualFind"));
  txtFind_->setPlaceholderText(tr("Find"));
  txtFind_->setAccessibleName(tr("Find in the manual"));
  lblResult_->setObjectName(QStringLiteral("lblManualResult"));
  row->addWidget(txtFind_, 1);
  row->addWidget(lblResult_);
  const auto addButton = [&](const QString& caption, const QString& hint, bool forward) {
    auto* button = new QPushButton(caption);
    button->setToolTip(hint);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, forward] { Find(forward); });
  };
  addButton(tr("Find &Previous"), tr("Shift+F3"), false);
  addButton(tr("Find &Next"), tr("F3"), true);
  connect(txtFind_, &QLineEdit::returnPressed, this, [this] { Find(true); });
  return row;
}

void ManualWindow::AddKeys() {
  const auto add = [this](const QKeySequence& keys, auto run) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
  };
  add(Qt::CTRL | Qt::Key_F, [this] {
    txtFind_->setFocus();
    txtFind_->selectAll();
  });
  add(Qt::Key_F3, [this] { Find(true); });
  add(Qt::SHIFT | Qt::Key_F3, [this] { Find(false); });
  add(Qt::CTRL | Qt::Key_Plus, [this] { browser_->zoomIn(); });
  add(Qt::CTRL | Qt::Key_Minus, [this] { browser_->zoomOut(); });
  add(Qt::Key_Escape, [this] { close(); });
}

void ManualWindow::Find(bool forward) {
  const QString wanted = txtFind_->text();
  if (wanted.isEmpty()) return;
  const auto flags = forward ? QTextDocument::FindFlags() : QTextDocument::FindBackward;
  bool found = browser_->find(wanted, flags);
  if (!found) {
    // On from the other end.
    const QTextCursor place = browser_->textCursor();
    browser_->moveCursor(forward ? QTextCursor::Start : QTextCursor::End);
    found = browser_->find(wanted, flags);
    if (!found) browser_->setTextCursor(place);
  }
  lblResult_->setText(found ? QString() : tr("not found"));
}

void ManualWindow::Show(const QString& markdown) {
  browser_->document()->setMarkdown(markdown);
  FitPictures(*browser_->document());
  browser_->moveCursor(QTextCursor::Start);
}

void ManualWindow::Follow(const QUrl& link) {
  if (!link.isRelative()) {
    QDesktopServices::openUrl(link);
    return;
  }
  if (link.path().endsWith(QStringLiteral(".md"))) Show(ManualText(link.path()));
  if (!link.hasFragment()) return;
  const QTextBlock heading = HeadingOf(*browser_->document(), link.fragment());
  if (!heading.isValid()) return;
  // The heading comes to the upper edge.
  browser_->moveCursor(QTextCursor::End);
  browser_->setTextCursor(QTextCursor(heading));
  browser_->ensureCursorVisible();
}

}  // namespace app
