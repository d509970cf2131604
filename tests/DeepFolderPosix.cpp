// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>

#include "tests/DeepFolder.h"

namespace tests {

DeepFolder::DeepFolder() : path_(around_.Path().string()) {
  constexpr std::size_t kNames = 6;
  for (std::size_t i = 0; i < kNames; ++i) {
    path_ = *this / std::string(60, 'd');
    MakeFolder(path_);
  }
}

DeepFolder::~DeepFolder() = default;

std::string DeepFolder::operator/(const std::string& name) const { return path_ + '/' + name; }

void MakeFolder(const std::string& path) { std::filesystem::create_directory(path); }

}  // namespace tests
