// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/OpenFileDialog.h"

#include <algorithm>

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QStringList>

#include "app/QtText.h"
#include "app/ScreenRoom.h"
#include "support/FileSystem.h"
#include "support/Text.h"

namespace modApiCommonDialog {

namespace {

// The next text of a NUL-separated row, taken off its front.
QString TakeText(std::string_view& row) {
  const std::string_view text = modAllPurpose::StripAtNul(row);
  row.remove_prefix(std::min(row.size(), text.size() + 1));
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// The filters in the toolkit's form: the shown text, then the patterns in brackets. Some desktops
// match them case by case, so both cases are named; the dialog hides them.
QStringList NameFilters(std::string_view filter) {
  QStringList filters;
  while (!filter.empty()) {
    const QString shown = TakeText(filter);
    const QString pattern = TakeText(filter);
    filters << QStringLiteral("%1 (%2 %3)").arg(shown, pattern, pattern.toUpper());
  }
  return filters;
}

// A dialog of the desktop has no buttons of the toolkit.
void HintAtCancel(const QFileDialog& dialog, const QString& hint) {
  const auto* buttons = dialog.findChild<QDialogButtonBox*>();
  QPushButton* cancel = buttons == nullptr ? nullptr : buttons->button(QDialogButtonBox::Cancel);
  if (cancel != nullptr) cancel->setToolTip(hint);
}

}  // namespace

DialogResult ResultForChosenFile(std::string_view path) {
  DialogResult result;
  result.DialogFileSpec = modAllPurpose::Trimmed(modAllPurpose::StripAtNul(path));
  result.DialogFolder = modAllPurpose::FolderPart(result.DialogFileSpec);
  result.DialogFileName = modAllPurpose::OwnName(result.DialogFileSpec);
  result.DialogOk = true;
  return result;
}

DialogResult ShowOpenFileDialog(QWidget* owner, std::string_view filter,
                                const std::string& initialFolder, const QString& title,
                                unsigned flags, const QString& cancelHint) {
  QFileDialog dialog(owner, title, QString::fromStdString(initialFolder));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilters(NameFilters(filter));
  if ((flags & (kPathMustExist | kFileMustExist)) != 0) {
    dialog.setFileMode(QFileDialog::ExistingFile);
  }
  HintAtCancel(dialog, cancelHint);
  app::OpenWithinScreen(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return ResultForChosenFile(app::PathFrom(dialog.selectedFiles().constFirst()));
}

}  // namespace modApiCommonDialog
