// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/Complaint.h"

#include <string>

#include <fmt/format.h>

#include "console/Escapes.h"
#include "console/Start.h"

namespace console {

void Complain(const Streams& streams, std::string_view message) {
  const std::string line = fmt::format("{}: {}\n", streams.Program, Escaped(message));
  WriteLines(streams.Error, line);
}

void ComplainOf(const std::string& file, std::string_view message, const Streams& streams) {
  Complain(streams, fmt::format("{}: {}", file, message));
}

}  // namespace console
