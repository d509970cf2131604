// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormReport.h"

#include <utility>

#include <QCheckBox>

#include "app/DesktopCopy.h"
#include "app/OutputPane.h"

namespace app {

bool FormReport::IsTicked() const {
  return copyToDesktop_ == CopyToDesktop::AsTicked && chkOut_.isChecked();
}

void FormReport::BeginReport() {
  if (IsTicked()) desktopCopy_.Open(desktopOutputPath_);
  txt_.Empty();
}

void FormReport::AppendOutput(std::string_view text, bool paneOnly, bool continueLine) {
  pending_ += text;
  if (!continueLine) pending_ += '\n';
  if (!paneOnly && IsTicked()) desktopCopy_.Write(text, continueLine);
}

void FormReport::ShowWritten() { txt_.Append(std::exchange(pending_, {})); }

void FormReport::EndReport() {
  ShowWritten();
  if (IsTicked()) {
    desktopCopy_.Close();
  } else {
    desktopCopy_.Flush();
  }
}

}  // namespace app
