// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunReports.h"

#include "cli/RunChecks.h"
#include "cli/RunPooled.h"
#include "cli/RunTables.h"
#include "cli/RunTexts.h"
#include "console/NamedFiles.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "reports/ReportList.h"

namespace cli {

int RunReports(const Request& request, const console::Streams& streams) {
  int status = console::kAllWell;
  const auto files = FilesToRead(request.Files, request.Folders, streams, status);
  const reports::ReportInfo& report = *reports::FindReport(request.Report);
  const bool isText = request.Format == OutputFormat::Text;
  try {
    if (report.Pools) {
      RunPooled(request, files, streams, status);
    } else if (!isText) {
      RunTables(request, files, streams, status);
    } else if (report.ReadsAnyFile) {
      RunChecks(request, files, streams, status);
    } else {
      RunTexts(request, files, streams, status);
    }
  } catch (const console::OutputClosed&) {
    // Whoever read the output has seen enough.
  }
  return status;
}

}  // namespace cli
