// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Tool.h"

#include <utility>
#include <variant>

#include "cli/CommandLine.h"
#include "cli/RunReports.h"
#include "console/RunCommandLine.h"

namespace cli {

using console::AskedText;
using console::Streams;

int RunTool(const std::vector<std::string>& arguments, const Streams& given) {
  const Streams streams{given.Output, given.Error, "vantrel-report"};
  return console::RunCommandLine(
      [&] {
        auto parsed = ParseCommandLine(arguments);
        if (const auto* asked = std::get_if<AskedText>(&parsed)) {
          return console::Print(*asked, streams);
        }
        return RunReports(std::get<Request>(std::move(parsed)), streams);
      },
      streams);
}

}  // namespace cli
