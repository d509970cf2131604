// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "support/ReportOutput.h"

class QCheckBox;

namespace app {

class DesktopCopy;
class OutputPane;

// Whether a command honours the check box for the desktop copy.
enum class CopyToDesktop { AsTicked, Never };

// The form's side of one report: the pane, the check box and the desktop copy.
//
// The box is read when the report begins (the copy is opened), with each piece (it is written) and
// at the end (it is closed). Ticked half-way, it writes nothing, for no copy is open; unticked
// half-way, it keeps the later lines out and leaves the copy open until the next report that opens
// it. The pane gets the whole text at the end.
class FormReport : public modAllPurpose::ReportOutput {
 public:
  FormReport(OutputPane& txt, const QCheckBox& chkOut, DesktopCopy& desktopCopy,
             std::string desktopOutputPath, CopyToDesktop copyToDesktop)
      : txt_(txt),
        chkOut_(chkOut),
        desktopCopy_(desktopCopy),
        desktopOutputPath_(std::move(desktopOutputPath)),
        copyToDesktop_(copyToDesktop) {}

  // Opens the desktop copy where it is wanted, then empties the pane and repaints it. Errors as
  // DesktopCopy::Open; the pane is then left as it was.
  void BeginReport() override;

  // Errors as DesktopCopy::Write.
  void AppendOutput(std::string_view text, bool paneOnly, bool continueLine) override;

  // Shows in the pane what was written so far.
  void ShowWritten();

  // The end of a report that was written: shows it and closes the desktop copy. Errors as
  // DesktopCopy::Write.
  void EndReport();

 private:
  bool IsTicked() const;

  OutputPane& txt_;
  const QCheckBox& chkOut_;
  DesktopCopy& desktopCopy_;
  std::string desktopOutputPath_;
  CopyToDesktop copyToDesktop_;
  std::string pending_;
};

}  // namespace app
