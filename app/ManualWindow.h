// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTextBrowser;
class QUrl;

namespace app {

// The manual in Markdown: the file that is installed beside the program, or the text that the
// program carries.
QString ManualText();

// Shows a text in Markdown in a window of its own, in which one can search and follow the links to
// its headings. Escape closes it.
class ManualWindow : public QWidget {
  Q_OBJECT

 public:
  ManualWindow(const QString& markdown, QWidget* parent);

 private:
  void AddFindRow();
  void AddKeys();
  void Find(bool forward);
  // Goes to the heading of a link within the text; other links are the desktop's.
  void Follow(const QUrl& link);

  QTextBrowser* browser_;
  QLineEdit* txtFind_;
  QLabel* lblResult_;
};

}  // namespace app
