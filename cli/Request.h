// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "cli/GcdReport.h"
#include "console/NamedFiles.h"
#include "reports/TableOptions.h"

namespace cli {

enum class OutputFormat { Text, Csv, Json };

// What the user asked for: a report, the files to make it of, and the options as they were given.
// An option that a report does not take says nothing to it.
struct Request {
  std::string Report;
  std::vector<std::string> Files;
  console::Folders Folders = console::Folders::Refused;
  int Jobs = 1;  // files that are worked on at once; 0: one a processor
  OutputFormat Format = OutputFormat::Text;
  reports::TableOptions Options;  // labels, group and parameter; a text report takes one label
  bool FurtherLabels = false;     // let text reports find the labels beyond the 255th
  std::string NormalFile;
  bool Events = false;
  GcdRequest Gcd;
};

}  // namespace cli
