// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/GcdReport.h"

#include <vector>

#include "support/FileSystem.h"

namespace cli {

using modVantrel::FileState;
using modVantrel::OverwriteAnswer;

namespace {

// Answers for the user: existing files were found, and refused or allowed, before.
class AskedBefore : public modVantrel::OverwriteQuestion {
 public:
  OverwriteAnswer Ask(const std::string& /*gcdFileName*/) override {
    return OverwriteAnswer::YesToAll;
  }
};

std::vector<std::string> FileNames(const FileState& state, const GcdRequest& request) {
  std::vector<std::string> names;
  for (const auto& stride : state.GaitEvents.ValidStrides) {
    names.push_back(
        modVantrel::GcdFileName(state.OpenC3dFileSpec, stride, request.Options.OutputFolder));
  }
  return names;
}

std::string WhyRefused(const std::vector<std::string>& names, const GcdRequest& request) {
  for (const std::string& name : names) {
    if (request.Written.contains(modAllPurpose::OneSpelling(name))) {
      return name + " was written for another trial of this command";
    }
    if (!request.Overwrite && modAllPurpose::FileExists(name)) {
      return name + " exists already (--overwrite replaces it)";
    }
  }
  return {};
}

}  // namespace

std::string WriteGcdReport(const FileState& state, GcdRequest& request,
                           modAllPurpose::ReportOutput& output) {
  const std::vector<std::string> names = FileNames(state, request);
  std::string refusal = WhyRefused(names, request);
  if (!refusal.empty()) return refusal;
  for (const std::string& name : names) request.Written.insert(modAllPurpose::OneSpelling(name));
  AskedBefore question;
  return modVantrel::WriteGcdFiles(state, request.Options, question, output).Text();
}

}  // namespace cli
