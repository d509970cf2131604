// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DesktopFolder.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

#include "support/Text.h"

namespace app {

std::string GetSpecialFolderPath(int folderId) {
  if (folderId != kDesktopFolderId) return {};
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
  if (!QFileInfo(folder).isDir()) return {};
  std::string path = folder.toStdString();
  modAllPurpose::TrimInPlace(path);
  if (!path.ends_with('/')) path += '/';
  return path;
}

std::string GetDesktopFolder() { return GetSpecialFolderPath(kDesktopFolderId); }

}  // namespace app
