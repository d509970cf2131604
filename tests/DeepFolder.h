// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "tests/TestTrials.h"

namespace tests {

// A folder whose path has more than 300 characters, removed with everything in it.
class DeepFolder {
 public:
  DeepFolder();
  DeepFolder(const DeepFolder&) = delete;
  DeepFolder& operator=(const DeepFolder&) = delete;
  ~DeepFolder();

  // In the program's form, with the system's separators.
  const std::string& Path() const { return path_; }
  // The path of `name` in it.
  std::string operator/(const std::string& name) const;

 private:
  TemporaryFolder around_;
  std::string path_;
};

// Makes the folder `path`, in a folder that is there.
void MakeFolder(const std::string& path);

}  // namespace tests
