// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunReports.h"

#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "c3d/FileState.h"
#include "cli/ReportTable.h"
#include "cli/RunChecks.h"
#include "cli/RunPooled.h"
#include "cli/RunTables.h"
#include "console/NamedFiles.h"
#include "console/OpenTrial.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "reports/ReportList.h"
#include "support/ReportOutput.h"
#include "support/RuntimeError.h"

namespace cli {

using console::ComplainOf;
using console::FilesToRead;
using console::kAllWell;
using console::kSomeFailed;
using console::Labels;
using console::MessageOf;
using console::OpenTrial;
using console::OutputClosed;
using console::StandardOutput;
using console::Streams;
using console::Unwritten;

using modAllPurpose::ReportOutput;
using modAllPurpose::RuntimeError;

namespace {

// Opens `file` and writes its report; answers with the message of a failed open or a refused input,
// empty where all is well.
std::string OpenAndReport(const std::string& file, Request& request, ReportOutput& output) {
  modVantrel::FileState state;
  const bool all = request.FurtherLabels || reports::FindReport(request.Report)->KnowsFurtherLabels;
  std::string refusal = OpenTrial(file, all ? Labels::All : Labels::First255, state);
  if (!refusal.empty()) return refusal;
  return FindTrialReport(request.Report).Text(state, request, output);
}

// Prints the reports of one command.
class ReportRun {
 public:
  ReportRun(Request& request, const Streams& streams)
      : request_(request),
        streams_(streams),
        several_(request.Files.size() > 1),
        unwritten_(reports::FindReport(request.Report)->WritesGcdFiles ? Unwritten::LosesLines
                                                                       : Unwritten::EndsReport) {}

  // False where something of the file's report failed, which then is named.
  bool Print(const std::string& file) {
    StandardOutput output(streams_.Output,
                          several_ ? fmt::format("==> {} <==", file) : std::string(), unwritten_);
    const std::string complaint = MessageOf([&] { return OpenAndReport(file, request_, output); });
    // What a report had written before an error stands; where it cannot, that is the message.
    const std::string lost = MessageOf([&] {
      output.Flush();
      return std::string();
    });
    const std::string& failure = lost.empty() ? complaint : lost;
    if (!failure.empty()) ComplainOf(file, failure, streams_);
    const std::string remark = std::exchange(request_.Gcd.Remark, {});
    if (!remark.empty()) ComplainOf(file, remark, streams_);
    if (output.LostLines()) ComplainOfLostLines(*output.LostLines());
    return failure.empty() && !output.LostLines();
  }

 private:
  // Lines that are lost are named once: their reason is that of all later ones.
  void ComplainOfLostLines(const RuntimeError& reason) {
    if (lostLinesNamed_) return;
    ComplainOf("standard output", modAllPurpose::RuntimeErrorLine(reason), streams_);
    lostLinesNamed_ = true;
  }

  Request& request_;
  const Streams& streams_;
  bool several_;
  Unwritten unwritten_;
  bool lostLinesNamed_ = false;
};

void RunTexts(Request& request, const Streams& streams, int& status) {
  ReportRun run(request, streams);
  for (const std::string& file : request.Files) {
    if (!run.Print(file)) status = kSomeFailed;
  }
}

}  // namespace

int RunReports(Request request, const Streams& streams) {
  int status = kAllWell;
  request.Files = FilesToRead(request.Files, streams, status);
  try {
    if (reports::FindReport(request.Report)->ReadsAnyFile) {
      RunChecks(request, request.Files, streams, status);
    } else if (reports::FindReport(request.Report)->Pools) {
      RunPooled(request, request.Files, streams, status);
    } else if (request.Format == OutputFormat::Text) {
      RunTexts(request, streams, status);
    } else {
      RunTables(request, request.Files, streams, status);
    }
  } catch (const OutputClosed&) {
    // Whoever read the output has seen enough.
  }
  return status;
}

}  // namespace cli
