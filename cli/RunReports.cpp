// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunReports.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "c3d/OpenC3dFile.h"
#include "cli/Complaint.h"
#include "cli/ReportTable.h"
#include "cli/StandardOutput.h"
#include "cli/Start.h"
#include "cli/Tool.h"
#include "gait/EventExtraction.h"
#include "support/ReportOutput.h"
#include "support/RuntimeError.h"

namespace cli {

using modAllPurpose::ReportOutput;
using modAllPurpose::RuntimeError;

namespace {

void ComplainOf(const std::string& file, std::string_view message, const Streams& streams) {
  Complain(streams.Error, fmt::format("{}: {}", file, message));
}

// What `work` answers, or the message of the error that ended it. OutputClosed passes.
template <typename Work>
std::string MessageOf(Work work) {
  const auto message = [](const RuntimeError& error) {
    return fmt::format("{} {}", modAllPurpose::RuntimeErrorTitle(error), error.what());
  };
  try {
    return work();
  } catch (const RuntimeError& error) {
    return message(error);
  } catch (const std::bad_alloc&) {
    return message(RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory));
  }
}

// The files that those of the command line stand for. One that cannot be told is complained about
// and left out; `status` says so.
std::vector<std::string> FilesToRead(const std::vector<std::string>& named, const Streams& streams,
                                     int& status) {
  std::vector<std::string> files;
  for (const std::string& file : named) {
    const std::string complaint = MessageOf([&] {
      std::ranges::move(WithoutWildcards(file), std::back_inserter(files));
      return std::string();
    });
    if (complaint.empty()) continue;
    ComplainOf(file, complaint, streams);
    status = kSomeFailed;
  }
  return files;
}

// Opens `file` and writes its report; answers with the message of a failed open or a refused input,
// empty where all is well.
std::string OpenAndReport(const std::string& file, Request& request, ReportOutput& output) {
  modVantrel::FileState state;
  const auto opened = modVantrel::OpenC3dFile(state, file, modVantrel::FindGaitEvents);
  if (opened != modVantrel::OpenResult::Success) {
    return std::string(modVantrel::OpenFailureMessage(opened));
  }
  return FunctionOf(request.Report)(state, request, output);
}

// The same on the output stream. What a report had written before an error is printed; where it
// cannot be, that is the message.
std::string PrintReport(const std::string& file, Request& request, const Streams& streams) {
  const bool several = request.Files.size() > 1;
  StandardOutput output(streams.Output, several ? fmt::format("==> {} <==", file) : std::string());
  const std::string complaint = MessageOf([&] { return OpenAndReport(file, request, output); });
  const std::string lost = MessageOf([&] {
    output.Flush();
    return std::string();
  });
  return lost.empty() ? complaint : lost;
}

}  // namespace

int RunReports(Request request, const Streams& streams) {
  int status = kAllWell;
  request.Files = FilesToRead(request.Files, streams, status);
  try {
    for (const std::string& file : request.Files) {
      const std::string complaint = PrintReport(file, request, streams);
      if (complaint.empty()) continue;
      ComplainOf(file, complaint, streams);
      status = kSomeFailed;
    }
  } catch (const OutputClosed&) {
    // Whoever read the output has seen enough.
  }
  return status;
}

}  // namespace cli
