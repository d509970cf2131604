// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "tests/TestTrials.h"

namespace tests {

// A folder of trials in folders, for commands over all of them: of each twelve files two are
// broken, one is no trial, one is long and the others are walks.
class Archive {
 public:
  // Files of one kind are one file under several names.
  explicit Archive(std::size_t files);

  std::string Path() const;
  std::filesystem::path operator/(const std::string& name) const { return folder_ / name; }

 private:
  TemporaryFolder folder_;
};

}  // namespace tests
