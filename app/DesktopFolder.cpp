// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DesktopFolder.h"

#include <QFileInfo>
#include <QStandardPaths>
#include <QString>

#include "app/QtText.h"
#include "support/Text.h"

namespace app {

std::string GetSpecialFolderPath(int folderId) {
  if (folderId != kDesktopFolderId) return {};
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
  if (!QFileInfo(folder).isDir()) return {};
  const char separator = QDir::separator().toLatin1();
  std::string path = PathFrom(folder);
  modAllPurpose::TrimInPlace(path);
  if (!path.ends_with(separator)) path += separator;
  return path;
}

std::string GetDesktopFolder() { return GetSpecialFolderPath(kDesktopFolderId); }

}  // namespace app
