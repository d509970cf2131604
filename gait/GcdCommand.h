// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "c3d/FileState.h"
#include "gait/GcdFiles.h"
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

  // Is told what the user must know of the files (GcdFiles::AxesRemark, never empty), when all are
  // written.
  virtual void Tell(const std::string& /*remark*/) {}
};

// What is said of a trial for which there is no GCD file to write.
inline constexpr std::string_view kNoValidStrides = "No valid stride events were found.";

// Writes one GCD file for each valid stride, one after the other, and names each in a line of
// `output`, then "Done.". Asks before overwriting, also where a file comes up between the question
// and the writing, until the answer is Yes to All; Cancel ends the command with "Cancelled." and
// keeps the files written so far. Rejected with kNoValidStrides. Errors as GcdFiles.
modAllPurpose::ReportResult WriteGcdFiles(const FileState& state, const GcdOptions& options,
                                          OverwriteQuestion& question,
                                          modAllPurpose::ReportOutput& output);

}  // namespace modVantrel
