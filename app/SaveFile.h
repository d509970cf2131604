// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QList>
#include <QString>

class QWidget;

namespace app {

// A form in which something can be saved: what the dialog says of it and the ending of its names.
struct FileKind {
  QString Description;
  QString Ending;  // without the dot
};

// Asks for a name, beginning with `proposed` (a path without its ending), and writes the text that
// `textOf` makes for the chosen ending, whole or not at all. A name with no ending of the list gets
// that of the chosen kind. An existing file is replaced after asking, a C3D file never; whoever
// says no is asked for another name. What cannot be written is told. Where `textOf` has
// no text nothing is written, and the matter ends. Errors as `textOf`.
void SaveFile(QWidget* owner, const QString& title, const QString& proposed,
              const QList<FileKind>& kinds,
              const std::function<std::optional<std::string>(const QString& ending)>& textOf);

}  // namespace app
