// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <QDir>
#include <QString>

namespace app {

// A text of the program (UTF-8) for the toolkit. Bytes that are not UTF-8, as a path may hold them,
// show as the replacement character.
inline QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A path of the toolkit, which separates folders by a slash everywhere, as the program and the
// system write it.
inline std::string PathFrom(const QString& path) {
  return QDir::toNativeSeparators(path).toStdString();
}

}  // namespace app
