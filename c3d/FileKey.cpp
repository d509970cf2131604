// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/FileKey.h"

#include <array>
#include <cstddef>

#include "c3d/C3dFormat.h"
#include "support/RandomAccessFile.h"

namespace modVantrel {

bool BeginsLikeC3dFile(const std::string& path) {
  modAllPurpose::RandomAccessFile file;
  file.Open(path);
  std::array<std::byte, 2> start{};
  return file.ReadAt(0, start) == start.size() && std::to_integer<int>(start[1]) == kFileKey;
}

}  // namespace modVantrel
