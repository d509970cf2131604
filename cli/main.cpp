// SPDX-License-Identifier: GPL-3.0-or-later

#include <utility>
#include <variant>

#include "cli/CommandLine.h"
#include "cli/RunReports.h"
#include "cli/Start.h"
#include "support/Interruption.h"

int main(int argc, char* argv[]) {
  modAllPurpose::LetInterruptionsWait();
  cli::PrepareOutput();
  auto parsed = cli::ParseCommandLine(cli::Arguments(argc, argv));
  if (const int* status = std::get_if<int>(&parsed)) return *status;
  return cli::RunReports(std::get<cli::Request>(std::move(parsed)));
}
