// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Complaint.h"

#include <string>

#include <fmt/format.h>

#include "cli/Escapes.h"

namespace cli {

void Complain(std::FILE* stream, std::string_view message) {
  const std::string line = fmt::format("vantrel-report: {}\n", Escaped(message));
  std::fwrite(line.data(), 1, line.size(), stream);
}

}  // namespace cli
