// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace tests {

// Sets the toolkit's variables as those with VANTREL_ before their names say: Wine hands none on
// whose name begins QT_. For a program's start, before there is an application.
inline void TakeToolkitVariables() {
  for (const char* name : {"QT_QPA_PLATFORM", "QT_QPA_FONTDIR", "QT_SCALE_FACTOR", "QT_FONT_DPI"}) {
    const QByteArray given = QByteArray("VANTREL_") + name;
    if (qEnvironmentVariableIsSet(given.constData())) qputenv(name, qgetenv(given.constData()));
  }
}

}  // namespace tests
