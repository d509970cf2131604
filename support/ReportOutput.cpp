// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/ReportOutput.h"

namespace modAllPurpose {

void TextReport::AppendOutput(std::string_view text, bool /*paneOnly*/, bool continueLine) {
  text_ += text;
  if (!continueLine) text_ += '\n';
}

}  // namespace modAllPurpose
