// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/RunChecks.h"

#include <memory>

#include <fmt/format.h>

#include "cli/TableOfRequest.h"
#include "console/OpenTrial.h"
#include "console/StandardOutput.h"
#include "console/Usage.h"
#include "gait/Checkup.h"
#include "reports/CheckReport.h"
#include "reports/ReportList.h"
#include "support/Text.h"

namespace cli {

using console::ComplainOf;
using console::kSomeFailed;
using console::MessageOf;
using console::StandardOutput;
using console::Streams;

using modVantrel::Finding;

namespace {

// Puts the text of a file under its name where there are several.
void ShowText(const std::string& file, bool several, const std::vector<Finding>& findings,
              StandardOutput& output) {
  if (several) output.Line(fmt::format("==> {} <==", file));
  reports::ShowFindings(findings, output);
}

void WriteFindings(const Request& request, const std::vector<std::string>& files,
                   StandardOutput& output, int& status) {
  const bool isText = request.Format == OutputFormat::Text;
  std::unique_ptr<reports::TableOutput> table;
  if (!isText) {
    table = MakeTable(request, output);
    table->Begin(reports::FindReport(request.Report)->Columns);
  }
  for (const std::string& file : files) {
    const std::vector<Finding> findings = reports::CheckFile(file);
    if (HasError(findings)) status = kSomeFailed;
    if (isText) {
      ShowText(file, files.size() > 1, findings, output);
    } else {
      reports::CheckRows(modAllPurpose::WithReplacements(file), findings, *table);
    }
  }
  if (!isText) table->End();
}

}  // namespace

void RunChecks(const Request& request, const std::vector<std::string>& files,
               const Streams& streams, int& status) {
  StandardOutput output(streams.Output, {});
  const std::string lost = MessageOf([&] {
    WriteFindings(request, files, output, status);
    output.Flush();
    return std::string();
  });
  if (lost.empty()) return;
  ComplainOf("standard output", lost, streams);
  status = kSomeFailed;
}

}  // namespace cli
