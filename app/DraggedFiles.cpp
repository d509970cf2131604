// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DraggedFiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

namespace app {

std::vector<std::string> DraggedFiles(const QMimeData* data) {
  std::vector<std::string> files;
  for (const QUrl& url : data->urls()) {
    if (!url.isLocalFile()) continue;
    const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
    files.push_back(QByteArray::fromPercentEncoding(path).toStdString());
  }
  return files;
}

bool AcceptCopy(QDropEvent* event) {
  if (!event->possibleActions().testFlag(Qt::CopyAction)) return false;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  return true;
}

}  // namespace app
