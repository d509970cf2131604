// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/KeysWindow.h"

#include <variant>

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QTableWidget>
#include <QVBoxLayout>

#include "app/MenuRows.h"
#include "app/ScreenRoom.h"

namespace app {

namespace {

constexpr QSize kKeysSize(560, 560);

// A caption without the marks of its letters.
QString Plain(QString caption) {
  const QString kept(QChar::Null);
  return caption.replace(QStringLiteral("&&"), kept)
      .remove(u'&')
      .replace(kept, QStringLiteral("&"));
}

QString KeysOf(const MenuRow& row) {
  QStringList keys;
  for (const QKeyCombination key : row.Keys) {
    if (key.key() != Qt::Key_unknown && key.key() != 0) {
      keys << QKeySequence(key).toString(QKeySequence::NativeText);
    }
  }
  return keys.join(QStringLiteral(", "));
}

void AddLine(QTableWidget& table, const MenuRow& row) {
  const QString keys = KeysOf(row);
  if (keys.isEmpty()) return;
  const int line = table.rowCount();
  table.insertRow(line);
  table.setItem(line, 0, new QTableWidgetItem(Plain(CaptionOf(row.Menu))));
  table.setItem(line, 1, new QTableWidgetItem(Plain(QString::fromUtf16(row.Caption))));
  table.setItem(line, 2, new QTableWidgetItem(keys));
}

void AddButtons(QTableWidget& table) {
  for (const FormRow& row : FormRows()) {
    const auto* button = std::get_if<ButtonRow>(&row);
    if (button != nullptr && IsReportButton(*button)) AddLine(table, RowOf(*button));
  }
}

void Fill(QTableWidget& table) {
  for (const MenuName menu : kMenus) {
    if (menu == MenuName::Reports) AddButtons(table);
    for (const MenuRow& row : MenuRows()) {
      if (row.Menu == menu) AddLine(table, row);
    }
  }
}

}  // namespace

KeysWindow::KeysWindow(QWidget* parent) : QDialog(parent) {
  setObjectName(QStringLiteral("KeysWindow"));
  setWindowTitle(tr("Keys"));
  OpenWithinScreen(*this, kKeysSize);
  auto* column = new QVBoxLayout(this);
  auto* table = new QTableWidget(0, 3);
  table->setObjectName(QStringLiteral("tblKeys"));
  table->setAccessibleName(tr("Keys"));
  table->setHorizontalHeaderLabels({tr("Menu"), tr("Command"), tr("Keys")});
  table->verticalHeader()->hide();
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setTabKeyNavigation(false);
  Fill(*table);
  table->resizeColumnsToContents();
  table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  table->setCurrentCell(0, 0);
  column->addWidget(table);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  column->addWidget(buttons);
}

}  // namespace app
