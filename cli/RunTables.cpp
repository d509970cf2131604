// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunTables.h"

#include <memory>
#include <utility>

#include "cli/TableOfRequest.h"
#include "console/Complaint.h"
#include "console/PostedOutput.h"
#include "console/RunFiles.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "reports/FileTable.h"
#include "reports/ReportList.h"
#include "support/MessageOf.h"

namespace cli {

using console::FileEnd;
using console::FileOutcome;
using console::StandardOutput;
using console::Streams;
using modAllPurpose::PostPiece;

namespace {

// Makes the rows of one file, as a part of the table.
FileEnd WorkOn(const Request& request, const std::string& file, console::PostedOutput& output) {
  const auto part = MakeTable(request, output);
  const reports::ReportInfo& report = *reports::FindReport(request.Report);
  part->BeginPart(report.Columns);
  const auto rows = WriteFileRows(report, file, request.Options, *part);
  output.Flush();
  FileOutcome outcome{{}, rows.Failed};
  for (const std::string& said : rows.Said) outcome.Remarks.push_back({file, said});
  return {[outcome = std::move(outcome)] { return outcome; }};
}

}  // namespace

void RunTables(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  StandardOutput output(streams.Output);
  const auto table = MakeTable(request, output);
  const console::Reader reader = console::ReaderOf(streams.Output);
  console::FileRun run;
  run.Work = [&](std::size_t number, const PostPiece& post) {
    console::PostedOutput part(post, console::Whole::Append, reader);
    return WorkOn(request, files[number], part);
  };
  run.Print = [&](const std::string& piece) { table->AddPart(piece); };
  run.Close = [&] {
    table->End();
    output.Flush();
  };
  const std::string lost = modAllPurpose::MessageOf([&] {
    table->Begin(reports::FindReport(request.Report)->Columns);
    RunFiles(files, request.Jobs, streams, run, status);
    return std::string();
  });
  if (lost.empty()) return;
  console::ComplainOf("standard output", lost, streams);
  status = console::kSomeFailed;
}

}  // namespace cli
