// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/Fonts.h"

#include <QFontDatabase>
#include <QString>

// The fonts are part of a static library, which the program has to ask for them. The toolkit wants
// that outside of every namespace.
static void RegisterFonts() { Q_INIT_RESOURCE(fonts); }

namespace plot {

namespace {

QString LoadedFamily() {
  RegisterFonts();
  for (const auto* file : {":/fonts/DejaVuSans.ttf", ":/fonts/DejaVuSans-Bold.ttf",
                           ":/fonts/DejaVuSans-Oblique.ttf"}) {
    QFontDatabase::addApplicationFont(QString::fromLatin1(file));
  }
  return QStringLiteral("DejaVu Sans");
}

}  // namespace

QFont FontOf(Face face, int size) {
  static const QString family = LoadedFamily();
  constexpr double kApart = 100.1;  // percent: too little to be seen
  QFont font(family);
  font.setPixelSize(size);
  font.setBold(face == Face::Bold);
  font.setStyle(face == Face::Oblique ? QFont::StyleOblique : QFont::StyleNormal);
  font.setLetterSpacing(QFont::PercentageSpacing, kApart);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace plot
