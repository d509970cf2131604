// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/FileKey.h"

#include <array>
#include <bit>
#include <cstddef>
#include <string_view>

#include "c3d/C3dFormat.h"
#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"

namespace modVantrel {

namespace {

// What other files begin with whose second byte happens to be the key.
constexpr std::array<std::string_view, 2> kOtherBeginnings = {"%PDF", "\x89PNG"};

}  // namespace

bool BeginsLikeC3dFile(const std::string& path) {
  modAllPurpose::RandomAccessFile file;
  file.Open(path);
  std::array<std::byte, 4> start{};
  const std::size_t count = file.ReadAt(0, start);
  if (count < 2 || std::to_integer<int>(start[1]) != kFileKey) return false;
  const auto letters = std::bit_cast<std::array<char, sizeof(start)>>(start);
  const std::string_view text(letters.data(), count);
  return text != kOtherBeginnings[0] && text != kOtherBeginnings[1];
}

bool IsC3dFile(const std::string& path) {
  return modAllPurpose::IsRegularFile(path) && BeginsLikeC3dFile(path);
}

}  // namespace modVantrel
