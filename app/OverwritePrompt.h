// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "gait/GcdCommand.h"

class QWidget;

namespace app {

class FormReport;

// Asks in a message box whether GCD files may be overwritten, and remembers a Cancel and what the
// user must know.
class OverwritePrompt : public modVantrel::OverwriteQuestion {
 public:
  // `report` is shown up to its last line before each question.
  OverwritePrompt(QWidget* owner, FormReport& report) : owner_(owner), report_(report) {}

  modVantrel::OverwriteAnswer Ask(const std::string& gcdFileName) override;

  void Tell(const std::string& remark) override { remark_ = remark; }
  // What was told of the files; empty for nothing.
  const std::string& Remark() const { return remark_; }

  bool Cancelled() const { return cancelled_; }

 private:
  QWidget* owner_;
  FormReport& report_;
  std::string remark_;
  bool cancelled_ = false;
};

}  // namespace app
