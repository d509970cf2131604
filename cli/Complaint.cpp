// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Complaint.h"

#include <string>

#include <fmt/format.h>

namespace cli {

void Complain(std::FILE* stream, std::string_view message) {
  const std::string line = fmt::format("vantrel-report: {}\n", message);
  std::fwrite(line.data(), 1, line.size(), stream);
}

}  // namespace cli
