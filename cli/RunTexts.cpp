// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunTexts.h"

#include <optional>
#include <utility>

#include "c3d/FileState.h"
#include "cli/GcdNames.h"
#include "cli/ReportTable.h"
#include "console/Headings.h"
#include "console/PostedOutput.h"
#include "console/RunFiles.h"
#include "console/StandardOutput.h"
#include "gait/OpenTrial.h"
#include "reports/ReportList.h"
#include "support/MessageOf.h"
#include "support/RuntimeError.h"

namespace cli {

using console::FileEnd;
using console::FileOutcome;
using console::StandardOutput;
using console::Streams;
using console::Unwritten;
using modAllPurpose::MessageOf;
using modAllPurpose::PostPiece;
using modAllPurpose::ReportOutput;
using modAllPurpose::RuntimeError;

namespace {

// Opens `file` and writes its report.
TextOutcome OpenAndReport(const std::string& file, const TextRequest& request,
                          ReportOutput& output) {
  modVantrel::FileState state;
  const reports::ReportInfo& report = *reports::FindReport(request.Asked.Report);
  const bool all = request.Asked.FurtherLabels || report.KnowsFurtherLabels;
  std::string refusal =
      OpenTrial(file, all ? modVantrel::Labels::All : modVantrel::Labels::First255, state);
  if (!refusal.empty()) return {.Refusal = std::move(refusal)};
  return FindText(report.Name)(state, request, output);
}

// Prints the reports of one command in their order.
class TextPrinter {
 public:
  TextPrinter(const Request& request, const Streams& streams)
      : stream_(streams.Output),
        unwritten_(reports::FindReport(request.Report)->WritesGcdFiles ? Unwritten::LosesLines
                                                                       : Unwritten::EndsReport) {
    BeginFile();
  }

  void Print(std::string piece) {
    if (lost_.empty()) lost_ = Attempt([&] { output_->Append(std::move(piece)); });
  }

  // Ends the report of a file, of which its work said `said`.
  FileOutcome End(const std::string& file, const TextOutcome& said) {
    if (lost_.empty()) lost_ = Attempt([&] { output_->Flush(); });
    FileOutcome outcome;
    // What a report had written before an error stands; where it cannot, that is the message.
    const std::string& failure = lost_.empty() ? said.Refusal : lost_;
    if (!failure.empty()) outcome.Remarks.push_back({file, failure});
    if (!said.Remark.empty()) outcome.Remarks.push_back({file, said.Remark});
    if (output_->LostLines()) NameLostLines(*output_->LostLines(), outcome);
    outcome.Failed = !failure.empty() || output_->LostLines();
    BeginFile();
    return outcome;
  }

  void Flush() { output_->Flush(); }

 private:
  template <typename Work>
  static std::string Attempt(Work work) {
    return MessageOf([&] {
      work();
      return std::string();
    });
  }

  void BeginFile() {
    output_.emplace(stream_, unwritten_);
    lost_.clear();
  }

  // Lines that are lost are named once: their reason is that of all later ones.
  void NameLostLines(const RuntimeError& reason, FileOutcome& outcome) {
    if (!std::exchange(lostLinesNamed_, true)) {
      outcome.Remarks.push_back({"standard output", modAllPurpose::RuntimeErrorLine(reason)});
    }
  }

  std::FILE* stream_;
  Unwritten unwritten_;
  std::optional<StandardOutput> output_;  // of the file whose turn it is
  std::string lost_;                      // why the rest of its report is not printed
  bool lostLinesNamed_ = false;
};

}  // namespace

void RunTexts(const Request& request, const std::vector<std::string>& files, const Streams& streams,
              int& status) {
  TextPrinter printer(request, streams);
  GcdNames gcdNames;
  const console::Reader reader = console::ReaderOf(streams.Output);
  console::FileRun run;
  run.Work = [&](std::size_t number, const PostPiece& post) -> FileEnd {
    console::PostedOutput output(post, console::Whole::Line, reader,
                                 console::HeadingOf(files, number));
    GcdTurn turn(gcdNames, number);
    TextOutcome said;
    const std::string failure = MessageOf([&] {
      said = OpenAndReport(files[number], {request, turn}, output);
      return said.Refusal;
    });
    output.Flush();
    said.Refusal = failure;
    return {[&, number, said = std::move(said)] { return printer.End(files[number], said); }};
  };
  run.Print = [&](std::string piece) { printer.Print(std::move(piece)); };
  run.Close = [&] { printer.Flush(); };
  RunFiles(files, request.Jobs, streams, run, status);
}

}  // namespace cli
