// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLayout;
class QLineEdit;
class QTextBrowser;
class QUrl;

namespace app {

// A page of the manual in Markdown: the file of that name that is installed beside the program, or
// the text that the program carries; empty for none.
QString ManualText(const QString& page = QStringLiteral("manual.md"));

// Shows a text in Markdown in a window of its own, in which one can search and follow the links to
// its headings and to other pages of the manual. Escape closes it.
class ManualWindow : public QWidget {
  Q_OBJECT

 public:
  ManualWindow(const QString& markdown, QWidget* parent);

 private:
  QLayout* FindRow();
  void AddKeys();
  void Find(bool forward);
  void Show(const QString& markdown);
  // Goes to the page or heading of a link; links that lead out of the manual are the desktop's.
  void Follow(const QUrl& link);

  QTextBrowser* browser_;
  QLineEdit* txtFind_;
  QLabel* lblResult_;
};

}  // namespace app
