// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunReports.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>

#include "c3d/OpenC3dFile.h"
#include "cli/ReportTable.h"
#include "cli/StandardOutput.h"
#include "cli/Start.h"
#include "gait/EventExtraction.h"
#include "support/RuntimeError.h"

namespace cli {

using modAllPurpose::RuntimeError;

namespace {

void Complain(const std::string& file, std::string_view message) {
  const std::string line = fmt::format("vantrel-report: {}: {}\n", file, message);
  // Where nobody listens there is nothing left to say.
  std::fwrite(line.data(), 1, line.size(), stderr);
}

void Complain(const std::string& file, const RuntimeError& error) {
  Complain(file, modAllPurpose::RuntimeErrorLine(error));
}

// The files that those of the command line stand for. One that cannot be told is complained about
// and left out; `status` says so.
std::vector<std::string> FilesToRead(const std::vector<std::string>& named, int& status) {
  std::vector<std::string> files;
  for (const std::string& file : named) {
    try {
      std::ranges::move(WithoutWildcards(file), std::back_inserter(files));
    } catch (const RuntimeError& error) {
      Complain(file, error);
      status = kSomeFailed;
    }
  }
  return files;
}

// Opens `file` and writes its report; answers with the message of a failed open or a refused input,
// empty where all is well.
std::string OpenAndReport(const std::string& file, Request& request, StandardOutput& output) {
  modVantrel::FileState state;
  const auto opened = modVantrel::OpenC3dFile(state, file, modVantrel::FindGaitEvents);
  if (opened != modVantrel::OpenResult::Success) {
    return std::string(modVantrel::OpenFailureMessage(opened));
  }
  return FindReport(request.Report)->Run(state, request, output);
}

bool ReportTo(StandardOutput& output, const std::string& file, Request& request) {
  try {
    std::string complaint;
    try {
      complaint = OpenAndReport(file, request, output);
    } catch (const OutputClosed&) {
      throw;
    } catch (...) {
      output.Flush();  // what the report had written stands
      throw;
    }
    output.Flush();
    if (!complaint.empty()) Complain(file, complaint);
    return complaint.empty();
  } catch (const RuntimeError& error) {
    Complain(file, error);
  } catch (const std::bad_alloc&) {
    Complain(file, RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory));
  }
  return false;
}

// Lines that are lost are named once: their reason is that of all later ones.
bool ComplainOfLostLines(const StandardOutput& output) {
  static bool named = false;
  if (!output.LostLines()) return false;
  if (!named) Complain("standard output", *output.LostLines());
  named = true;
  return true;
}

bool Report(const std::string& file, Request& request) {
  const bool several = request.Files.size() > 1;
  StandardOutput output(several ? fmt::format("==> {} <==", file) : std::string(),
                        FindReport(request.Report)->WhenUnwritten);
  const bool written = ReportTo(output, file, request);
  return !ComplainOfLostLines(output) && written;
}

}  // namespace

int RunReports(Request request) {
  int status = kAllWell;
  request.Files = FilesToRead(request.Files, status);
  try {
    for (const std::string& file : request.Files) {
      if (!Report(file, request)) status = kSomeFailed;
    }
  } catch (const OutputClosed&) {
    // Whoever read the output has seen enough.
  }
  return status;
}

}  // namespace cli
