// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/SaveFile.h"

#include <algorithm>
#include <optional>

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

#include "app/MessageBoxes.h"
#include "app/QtText.h"
#include "app/ScreenRoom.h"
#include "app/modMsgBoxPlus.h"
#include "c3d/FileKey.h"
#include "support/RuntimeError.h"
#include "support/WholeFiles.h"

namespace app {

namespace {

QString FilterOf(const FileKind& kind) {
  return QStringLiteral("%1 (*.%2)").arg(kind.Description, kind.Ending);
}

// The ending of the list that the name has; empty for none.
QString EndingOf(const QString& name, const QList<FileKind>& kinds) {
  for (const FileKind& kind : kinds) {
    if (name.endsWith(QLatin1Char('.') + kind.Ending, Qt::CaseInsensitive)) return kind.Ending;
  }
  return {};
}

struct ChosenName {
  std::string Path;
  QString Ending;
};

std::optional<ChosenName> AskForName(QWidget* owner, const QString& title, const QString& proposed,
                                     const QList<FileKind>& kinds) {
  QFileDialog dialog(owner, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked of the whole name, below
  QStringList filters;
  for (const FileKind& kind : kinds) filters << FilterOf(kind);
  dialog.setNameFilters(filters);
  OpenWithinScreen(dialog);
  dialog.setDirectory(QFileInfo(proposed).path());
  dialog.selectFile(QDir::fromNativeSeparators(proposed) + QLatin1Char('.') + kinds.first().Ending);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  QString name = dialog.selectedFiles().constFirst();
  QString ending = EndingOf(name, kinds);
  if (ending.isEmpty()) {
    const qsizetype chosen = filters.indexOf(dialog.selectedNameFilter());
    ending = kinds.at(std::max<qsizetype>(chosen, 0)).Ending;
    name += QLatin1Char('.') + ending;
  }
  return ChosenName{PathFrom(name), ending};
}

bool MayReplace(QWidget* owner, const std::string& path) {
  const QString replace = QStringLiteral("Replace");
  return modMsgBoxPlus::MsgBoxPlus(
             owner, modMsgBoxPlus::kOkCancel, QStringLiteral("Vantrel"),
             ToQString("The file '" + path + "' already exists.  Do you wish to replace it?"),
             modMsgBoxPlus::kQuestionIcon | modMsgBoxPlus::kSecondButtonIsDefault, replace,
             QStringLiteral("Cancel"), {}, 0) == replace;
}

// False where the user wants another name.
bool Write(QWidget* owner, const std::string& path, const std::string& text) {
  if (modAllPurpose::WriteFileWhereFree(path, text)) return true;
  if (modVantrel::IsC3dFile(path)) {
    ShowMessage(owner, "The file '" + path + "' is a C3D file and stays as it is.");
    return false;
  }
  if (!MayReplace(owner, path)) return false;
  modAllPurpose::WriteFileInOneStep(path, text);
  return true;
}

// The same; an error is told and asks for another name too.
bool WriteOrTell(QWidget* owner, const std::string& path, const std::string& text) {
  try {
    return Write(owner, path, text);
  } catch (const modAllPurpose::RuntimeError& error) {
    std::string message = "The file could not be written.  " + std::string(error.what());
    if (!error.About().empty()) message += "\n" + std::string(error.About());
    ShowMessage(owner, message);
    return false;
  }
}

}  // namespace

void SaveFile(QWidget* owner, const QString& title, const QString& proposed,
              const QList<FileKind>& kinds,
              const std::function<std::optional<std::string>(const QString& ending)>& textOf) {
  QString name = proposed;
  while (const auto chosen = AskForName(owner, title, name, kinds)) {
    const auto text = textOf(chosen->Ending);
    if (!text || WriteOrTell(owner, chosen->Path, *text)) return;
    name = ToQString(chosen->Path).chopped(chosen->Ending.size() + 1);
  }
}

}  // namespace app
