// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "gait/SubjectRecord.h"
#include "support/ReportOutput.h"

namespace modVantrel {

enum class OverwriteAnswer { Yes, YesToAll, Cancel };

// Asks whether an existing GCD file may be overwritten: the window with a message box, the tool
// with what its command line said.
class OverwriteQuestion {
 public:
  OverwriteQuestion() = default;
  OverwriteQuestion(const OverwriteQuestion&) = delete;
  OverwriteQuestion& operator=(const OverwriteQuestion&) = delete;
  virtual ~OverwriteQuestion() = default;

  virtual OverwriteAnswer Ask(const std::string& gcdFileName) = 0;
};

struct GcdOptions {
  // The folder for the files; empty for that of the trial.
  std::string OutputFolder;
  SubjectOptions Subject;
};

// The trial's path without its last four characters, then "-", the side's letter, the stride's
// number and ".gcd"; in `outputFolder` where that is not empty.
std::string GcdFileName(const std::string& trial, const StrideRecord& stride,
                        const std::string& outputFolder);

// Writes one GCD file for each valid stride and names each in a line of `output`, then "Done.".
// Asks before overwriting until the answer is Yes to All; Cancel ends the command with "Cancelled."
// and keeps the files written so far. Rejected with "No valid stride events were found.". Each file
// is made whole before an old one is touched. Errors as clsGcdCalcs and WriteFileInOneStep.
modAllPurpose::ReportResult WriteGcdFiles(const FileState& state, const GcdOptions& options,
                                          OverwriteQuestion& question,
                                          modAllPurpose::ReportOutput& output);

}  // namespace modVantrel
