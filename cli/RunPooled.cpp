// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunPooled.h"

#include <memory>
#include <utility>
#include <variant>

#include "c3d/FileState.h"
#include "cli/TableOfRequest.h"
#include "console/Complaint.h"
#include "console/PostedOutput.h"
#include "console/RunFiles.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "gait/OpenTrial.h"
#include "reports/PooledReportList.h"
#include "reports/ReportList.h"
#include "support/MessageOf.h"

namespace cli {

using console::ComplainOf;
using console::FileEnd;
using console::FileOutcome;
using console::StandardOutput;
using console::Streams;
using console::Whole;
using modAllPurpose::MessageOf;
using modAllPurpose::PostPiece;
using reports::Complaints;
using reports::PooledReport;

namespace {

// What one trial leaves for its turn: its strides, and what is to be said of it.
struct ReadTrial {
  std::function<void()> TakeIn;  // none where reading failed
  Complaints Said;
};

// About what the strides of a trial take while they wait, with all labels of a full-body model.
constexpr std::size_t kBytesOfTrial = std::size_t{512} * 1024;

ReadTrial Read(const std::string& file, PooledReport& report) {
  ReadTrial trial;
  std::string failure = MessageOf([&] {
    modVantrel::FileState state;
    std::string refusal = OpenTrial(file, modVantrel::Labels::All, state);
    if (!refusal.empty()) return refusal;
    trial.Said = report.Missing(state);
    trial.TakeIn = report.Read(state);
    return refusal;
  });
  if (!failure.empty()) trial.Said.push_back(std::move(failure));
  return trial;
}

FileOutcome TakeIn(const std::string& file, const ReadTrial& trial) {
  Complaints said = trial.Said;
  std::string failure = MessageOf([&] {
    if (trial.TakeIn) trial.TakeIn();
    return std::string();
  });
  if (!failure.empty()) said.push_back(std::move(failure));
  FileOutcome outcome{{}, !said.empty()};
  for (std::string& message : said) outcome.Remarks.push_back({file, std::move(message)});
  return outcome;
}

void ReadAll(const std::vector<std::string>& files, int jobs, const Streams& streams,
             PooledReport& report, int& status) {
  console::FileRun run;
  run.Work = [&](std::size_t number, const modAllPurpose::PostPiece& /*post*/) -> FileEnd {
    const std::string& file = files[number];
    return {[&file, trial = Read(file, report)] { return TakeIn(file, trial); }, kBytesOfTrial};
  };
  RunFiles(files, jobs, streams, run, status);
}

// What is printed behind the last trial, made beside the thread that prints it.
Complaints Write(const Request& request, const PooledReport& report, const PostPiece& post,
                 console::Reader reader) {
  const bool isText = request.Format == OutputFormat::Text;
  console::PostedOutput output(post, isText ? Whole::Line : Whole::Append, reader);
  Complaints complaints;
  if (isText) {
    complaints = report.ShowText(output);
  } else {
    const auto part = MakeTable(request, output);
    part->BeginPart(reports::FindReport(request.Report)->Columns);
    complaints = report.WriteRows(*part);
  }
  output.Flush();
  return complaints;
}

// Prints the report as RunFiles prints that of one file, so that it ends well where it is
// interrupted. An error of it, or of the output, passes.
Complaints WriteAndPrint(const Request& request, const PooledReport& report,
                         const Streams& streams) {
  StandardOutput output(streams.Output);
  const bool isText = request.Format == OutputFormat::Text;
  const auto table = MakeTable(request, output);
  Complaints complaints;
  console::FileRun run;
  run.Work = [&](std::size_t /*number*/, const PostPiece& post) -> FileEnd {
    complaints = Write(request, report, post, console::ReaderOf(streams.Output));
    return {[] { return FileOutcome(); }};
  };
  run.Print = [&](std::string piece) {
    if (isText) {
      output.Append(std::move(piece));
    } else {
      table->AddPart(piece);
    }
  };
  run.Close = [&] {
    if (!isText) table->End();
    output.Flush();
  };
  if (!isText) table->Begin(reports::FindReport(request.Report)->Columns);
  int status = console::kAllWell;
  RunFiles({request.Report}, 1, streams, run, status);
  return complaints;
}

// Writes the report; false where something is complained of.
bool Print(const Request& request, const PooledReport& report, const Streams& streams) {
  Complaints complaints;
  const std::string lost = MessageOf([&] {
    complaints = WriteAndPrint(request, report, streams);
    return std::string();
  });
  for (const std::string& complaint : complaints) ComplainOf(request.Report, complaint, streams);
  if (!lost.empty()) ComplainOf("standard output", lost, streams);
  return complaints.empty() && lost.empty();
}

}  // namespace

void RunPooled(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  const auto made = reports::MakePooledReport(request.Report, request.Options, request.NormalFile);
  if (const auto* failure = std::get_if<std::string>(&made)) {
    Complain(streams, *failure);
    status = console::kSomeFailed;
    return;
  }
  PooledReport& report = *std::get<std::unique_ptr<PooledReport>>(made);
  ReadAll(files, request.Jobs, streams, report, status);
  if (!Print(request, report, streams)) status = console::kSomeFailed;
}

}  // namespace cli
