// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/DraggedFiles.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>

#include "app/QtText.h"

namespace app {

namespace {

#ifdef _WIN32
std::string PathOf(const QUrl& url) { return PathFrom(url.toLocalFile()); }
#else
// Byte for byte: a name need not be UTF-8.
std::string PathOf(const QUrl& url) {
  const QByteArray path = url.path(QUrl::FullyEncoded).toLatin1();
  return QByteArray::fromPercentEncoding(path).toStdString();
}
#endif

}  // namespace

std::vector<std::string> DraggedFiles(const QMimeData* data) {
  std::vector<std::string> files;
  for (const QUrl& url : data->urls()) {
    if (url.isLocalFile()) files.push_back(PathOf(url));
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
