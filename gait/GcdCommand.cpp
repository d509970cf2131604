// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdCommand.h"

#include <cstddef>
#include <filesystem>

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "support/FileSystem.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;

namespace {

// Writes the GCD files of one command.
class GcdWriter {
 public:
  GcdWriter(const FileState& state, const GcdOptions& options, OverwriteQuestion& question)
      : state_(state),
        outputFolder_(options.OutputFolder),
        subject_(FindSubject(state, options.Subject)),
        question_(question),
        calcs_(state) {}

  // Writes the file of a stride and returns its name; empty where the user cancelled.
  std::string WriteGcdFileForStride(std::int32_t strideIndex) {
    const StrideRecord& stride = state_.GaitEvents.ValidStrides[strideIndex];
    const std::string_view side = SideName(stride.Side);
    std::string name = GcdFileName(state_.OpenC3dFileSpec, stride, outputFolder_);
    if (!MayWrite(name)) return {};
    WriteGcdFile(name, strideIndex, fmt::format("!{}", side), side.substr(0, 1));
    return name;
  }

 private:
  bool MayWrite(const std::string& name) {
    if (yesToAll_ || !modAllPurpose::FileExists(name)) return true;
    const OverwriteAnswer answer = question_.Ask(name);
    yesToAll_ = answer == OverwriteAnswer::YesToAll;
    return answer != OverwriteAnswer::Cancel;
  }

  void WriteGcdFile(const std::string& name, std::int32_t strideIndex,
                    const std::string& valuePrefix, std::string_view labelLetter) {
    modAllPurpose::WriteFileInOneStep(
        name, calcs_.GcdText(strideIndex, valuePrefix, labelLetter, subject_));
  }

  const FileState& state_;
  std::string outputFolder_;
  SubjectRecord subject_;
  OverwriteQuestion& question_;
  clsGcdCalcs calcs_;
  bool yesToAll_ = false;
};

}  // namespace

std::string GcdFileName(const std::string& trial, const StrideRecord& stride,
                        const std::string& outputFolder) {
  std::string name = fmt::format("{}-{}{}.gcd", modAllPurpose::WithoutExtension(trial),
                                 SideName(stride.Side).front(), stride.Number);
  if (outputFolder.empty()) return name;
  // Windows takes two separators; the folder goes on with the one that it is written with.
  constexpr char kSeparator = std::filesystem::path::preferred_separator;
  const bool ended = outputFolder.back() == '/' || outputFolder.back() == kSeparator;
  const char separator = outputFolder.find(kSeparator) == std::string::npos ? '/' : kSeparator;
  const auto fileName = modAllPurpose::NativePath(name).filename();
  return (ended ? outputFolder : outputFolder + separator) + modAllPurpose::Utf8Path(fileName);
}

ReportResult WriteGcdFiles(const FileState& state, const GcdOptions& options,
                           OverwriteQuestion& question, ReportOutput& output) {
  if (state.GaitEvents.ValidStrideCount == 0) {
    return ReportResult::Rejected("No valid stride events were found.");
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
  return ReportResult::Written();
}

}  // namespace modVantrel
