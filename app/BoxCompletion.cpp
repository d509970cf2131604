// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/BoxCompletion.h"

#include <algorithm>

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QStringListModel>

namespace app {

namespace {

constexpr int kMostRows = 10;

// Names are wider than the boxes.
void WidenPopup(QCompleter& completer, const QLineEdit& box) {
  constexpr int kMostWidth = 400;
  constexpr int kFrameAndBar = 30;
  const QFontMetrics letters = completer.popup()->fontMetrics();
  int widest = box.width();
  const QAbstractItemModel& shown = *completer.completionModel();
  for (int row = 0; row < std::min(shown.rowCount(), kMostRows); ++row) {
    const QString name = shown.index(row, 0).data().toString();
    widest = std::max(widest, letters.horizontalAdvance(name) + kFrameAndBar);
  }
  completer.popup()->setMinimumWidth(std::min(widest, kMostWidth));
}

}  // namespace

void ProposeNames(QLineEdit& box, const std::function<QStringList()>& names) {
  auto* model = new QStringListModel(&box);
  auto* completer = new QCompleter(model, &box);
  completer->setCaseSensitivity(Qt::CaseInsensitive);
  completer->setFilterMode(Qt::MatchContains);
  completer->setMaxVisibleItems(kMostRows);
  completer->popup()->setAccessibleName(QLineEdit::tr("Proposals"));
  // A list that takes hold of mouse and keys would swallow the click on a button and the way on by
  // Tab; this one takes nothing but what the box hands on.
  completer->popup()->setParent(&box, Qt::ToolTip);
  box.setCompleter(completer);
  // Comes before the completer looks.
  QObject::connect(&box, &QLineEdit::textEdited, model, [=, &box](const QString& text) {
    QStringList known = names();
    known.removeAll(QString());
    known.removeDuplicates();
    if (known != model->stringList()) model->setStringList(known);
    completer->setCompletionPrefix(text);
    WidenPopup(*completer, box);
  });
  // A box that the program empties has another trial, to which the proposals do not belong.
  QObject::connect(&box, &QLineEdit::textChanged, completer, [completer](const QString& text) {
    if (text.isEmpty()) completer->popup()->hide();
  });
}

}  // namespace app
