// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/GcdReport.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "c3d/FileKey.h"
#include "gait/GcdCommand.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace cli {

using modAllPurpose::OneSpelling;
using modVantrel::FileState;
using modVantrel::GcdFiles;

namespace {

// Whether a file of that name may be replaced: a regular one that is no trial.
bool IsReplaceable(const std::string& name) {
  bool isTrial = true;
  modAllPurpose::IgnoringErrors([&] { isTrial = modVantrel::IsC3dFile(name); });
  return !isTrial && modAllPurpose::IsRegularFile(name);
}

std::string ExistsAlready(const std::string& name) {
  return name + " exists already" + (IsReplaceable(name) ? " (--overwrite replaces it)" : "");
}

std::vector<std::string> FileNames(const GcdFiles& files) {
  std::vector<std::string> names;
  for (std::int32_t i = 1; i <= files.Count(); ++i) names.push_back(files.Name(i));
  return names;
}

// Why not all of `names` can be written, of which links may make one; empty where they can.
std::string WhyTooFew(const std::vector<std::string>& names) {
  std::map<std::string, std::string> nameOf;
  for (const std::string& name : names) {
    const auto [other, isNew] = nameOf.emplace(OneSpelling(name), name);
    if (isNew) continue;
    return fmt::format("{} leads to the same file as {}, one stride would replace the other", name,
                       other->second);
  }
  return {};
}

// Writes the GCD files of one trial of the command.
class GcdRun {
 public:
  GcdRun(const FileState& state, const GcdRequest& request, GcdTurn& turn,
         modAllPurpose::ReportOutput& output)
      : files_(state, request.Options),
        names_(FileNames(files_)),
        trial_(OneSpelling(state.OpenC3dFileSpec)),
        request_(request),
        turn_(turn),
        output_(output) {
    turn_.Claim(trial_, names_);
  }

  std::string WhyRefused() const {
    if (names_.empty()) return std::string(modVantrel::kNoValidStrides);
    if (std::ranges::all_of(names_,
                            [this](const auto& name) { return turn_.WriterOf(name) == trial_; })) {
      return "this trial is named twice, its GCD files are written";
    }
    for (const std::string& name : names_) {
      const std::string writer = turn_.WriterOf(name);
      if (!writer.empty() && writer != trial_) {
        return name + " was written for another trial of this command";
      }
      if (!request_.Overwrite && modAllPurpose::IsNameTaken(name)) return ExistsAlready(name);
    }
    return WhyTooFew(names_);
  }

  TextOutcome Write() {
    if (request_.Overwrite) {
      output_.BeginReport();
      files_.ReplaceAll([this](const std::string& name) { Tell(name); });
    } else {
      const std::string taken = files_.WriteAllWhereFree();
      if (!taken.empty()) return {.Refusal = ExistsAlready(taken)};
      output_.BeginReport();
      for (const std::string& name : names_) Tell(name);
    }
    output_.PaneLine("Done.");
    std::string remark = files_.AxesRemark();
    if (!remark.empty()) remark += " (--axes anatomical takes 1 and 2)";
    return {.Remark = std::move(remark)};
  }

 private:
  void Tell(const std::string& name) {
    turn_.Wrote(name);
    output_.PaneLine("Output: " + name);
  }

  GcdFiles files_;
  std::vector<std::string> names_;
  std::string trial_;
  const GcdRequest& request_;
  GcdTurn& turn_;
  modAllPurpose::ReportOutput& output_;
};

}  // namespace

TextOutcome WriteGcdReport(const FileState& state, const GcdRequest& request, GcdTurn& turn,
                           modAllPurpose::ReportOutput& output) {
  GcdRun run(state, request, turn, output);
  std::string refusal = run.WhyRefused();
  return refusal.empty() ? run.Write() : TextOutcome{.Refusal = std::move(refusal)};
}

}  // namespace cli
