// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/AboutText.h"

#include <Qsci/qsciglobal.h>
#include <QtGlobal>
#include <fmt/format.h>

namespace app {

std::string AboutText() {
  constexpr int kMajor = FMT_VERSION / 10000;
  constexpr int kMinor = FMT_VERSION / 100 % 100;
  constexpr int kPatch = FMT_VERSION % 100;
  return fmt::format(
      "Vantrel {}\n"
      "Clinical gait analysis from C3D motion-capture files\n\n"
      "Licence: GPL-3.0-or-later. You may use, study, share and change it; it comes without any "
      "warranty.\n\n"
      "Libraries:\n"
      "Qt {}\n"
      "QScintilla {}\n"
      "fmt {}.{}.{}",
      VANTREL_VERSION, qVersion(), QSCINTILLA_VERSION_STR, kMajor, kMinor, kPatch);
}

}  // namespace app
