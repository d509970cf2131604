// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunChecks.h"

#include <utility>

#include "console/Complaint.h"
#include "console/Headings.h"
#include "console/PostedOutput.h"
#include "console/RunFiles.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "gait/Checkup.h"
#include "reports/CheckReport.h"
#include "support/MessageOf.h"

namespace cli {

using console::FileEnd;
using console::FileOutcome;
using console::StandardOutput;
using console::Streams;
using modAllPurpose::PostPiece;

namespace {

FileEnd WorkOn(const std::string& file, console::PostedOutput& output) {
  const auto findings = reports::CheckFile(file);
  reports::ShowFindings(findings, output);
  output.Flush();
  return {[failed = HasError(findings)] { return FileOutcome{{}, failed}; }};
}

}  // namespace

void RunChecks(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  StandardOutput output(streams.Output);
  const console::Reader reader = console::ReaderOf(streams.Output);
  console::FileRun run;
  run.Work = [&](std::size_t number, const PostPiece& post) {
    console::PostedOutput text(post, console::Whole::Line, reader,
                               console::HeadingOf(files, number));
    return WorkOn(files[number], text);
  };
  run.Print = [&](std::string piece) { output.Append(std::move(piece)); };
  run.Close = [&] { output.Flush(); };
  const std::string lost = modAllPurpose::MessageOf([&] {
    RunFiles(files, request.Jobs, streams, run, status);
    return std::string();
  });
  if (lost.empty()) return;
  console::ComplainOf("standard output", lost, streams);
  status = console::kSomeFailed;
}

}  // namespace cli
