// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/NamedFiles.h"

#include <algorithm>
#include <iterator>

#include "console/OpenTrial.h"
#include "console/Start.h"
#include "console/Usage.h"

namespace console {

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

}  // namespace console
