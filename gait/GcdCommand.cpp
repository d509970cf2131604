// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdCommand.h"

#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::IsFolder;
using modAllPurpose::IsNameTaken;
using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modAllPurpose::RuntimeError;

namespace {

// Writes the GCD files of one command.
class GcdWriter {
 public:
  GcdWriter(const FileState& state, const GcdOptions& options, OverwriteQuestion& question)
      : files_(state, options), question_(question) {}

  // Writes the file of a stride and returns its name; empty where the user cancelled.
  std::string WriteGcdFileForStride(std::int32_t strideIndex) {
    std::string name = files_.Name(strideIndex);
    while (!MayReplace(name)) {
      if (cancelled_) return {};
      if (files_.WriteWhereFree(strideIndex)) return name;
      // What has come up meanwhile is asked about, a folder aside, which no answer can replace.
      if (!IsFolder(name)) continue;
      throw RuntimeError(ErrorNumber::PathFileAccessError, name + " is a folder");
    }
    files_.Replace(strideIndex);
    return name;
  }

  void TellRemark() {
    const std::string remark = files_.AxesRemark();
    if (!remark.empty()) question_.Tell(remark);
  }

 private:
  // Whether the user said so of this file or of all.
  bool MayReplace(const std::string& name) {
    if (yesToAll_) return true;
    if (!IsNameTaken(name) || IsFolder(name)) return false;
    const OverwriteAnswer answer = question_.Ask(name);
    yesToAll_ = answer == OverwriteAnswer::YesToAll;
    cancelled_ = answer == OverwriteAnswer::Cancel;
    return !cancelled_;
  }

  GcdFiles files_;
  OverwriteQuestion& question_;
  bool yesToAll_ = false;
  bool cancelled_ = false;
};

}  // namespace

ReportResult WriteGcdFiles(const FileState& state, const GcdOptions& options,
                           OverwriteQuestion& question, ReportOutput& output) {
  if (state.GaitEvents.ValidStrideCount == 0) {
    return ReportResult::Rejected(std::string(kNoValidStrides));
  }
  output.BeginReport();
  GcdWriter writer(state, options, question);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    const std::string name = writer.WriteGcdFileForStride(i);
    if (name.empty()) {
      output.PaneLine("Cancelled.");
      return ReportResult::Written();
    }
    output.PaneLine("Output: " + name);
  }
  output.PaneLine("Done.");
  writer.TellRemark();
  return ReportResult::Written();
}

}  // namespace modVantrel
