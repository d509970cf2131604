// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace app {

// A text as a tooltip that shows exactly its characters, also where it holds the name of a file
// that reads like markup. Long lines are broken at the toolkit's width for tooltips.
inline QString WrappedToolTip(const QString& text) {
  if (text.isEmpty()) return {};
  return QStringLiteral("<p>%1</p>")
      .arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("</p><p>")));
}

// The same with its lines and blanks as they are.
inline QString UnwrappedToolTip(const QString& text) {
  if (text.isEmpty()) return {};
  return QStringLiteral("<span style='white-space:pre'>%1</span>").arg(text.toHtmlEscaped());
}

}  // namespace app
