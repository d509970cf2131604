// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "gait/GcdCommand.h"

class QWidget;

namespace app {

class FormReport;

// Asks in a message box whether GCD files may be overwritten, and remembers a Cancel.
class OverwritePrompt : public modVantrel::OverwriteQuestion {
 public:
  // `report` is shown up to its last line before each question.
  OverwritePrompt(QWidget* owner, FormReport& report) : owner_(owner), report_(report) {}

  modVantrel::OverwriteAnswer Ask(const std::string& gcdFileName) override;

  bool Cancelled() const { return cancelled_; }

 private:
  QWidget* owner_;
  FormReport& report_;
  bool cancelled_ = false;
};

}  // namespace app
