// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Tool.h"

#include <utility>
#include <variant>

#include "cli/CommandLine.h"
#include "cli/Complaint.h"
#include "cli/RunReports.h"
#include "cli/StandardOutput.h"
#include "support/RuntimeError.h"

namespace cli {

namespace {

// Prints what was asked for in place of a report, and returns the exit status.
int Print(const AskedText& asked, const Streams& streams) {
  StandardOutput output(streams.Output, {});
  try {
    output.Piece(asked.Text);
    output.Flush();
  } catch (const OutputClosed&) {
    // Whoever asked has seen enough.
  } catch (const modAllPurpose::RuntimeError& error) {
    Complain(streams.Error, RuntimeErrorLine(error));
    return kSomeFailed;
  }
  return kAllWell;
}

}  // namespace

int RunTool(const std::vector<std::string>& arguments, const Streams& streams) {
  try {
    auto parsed = ParseCommandLine(arguments);
    if (const auto* asked = std::get_if<AskedText>(&parsed)) return Print(*asked, streams);
    return RunReports(std::get<Request>(std::move(parsed)), streams);
  } catch (const UsageError& error) {
    Complain(streams.Error, error.what());
    std::fputs("Try 'vantrel-report --help' for more information.\n", streams.Error);
    return kUsageError;
  }
}

}  // namespace cli
