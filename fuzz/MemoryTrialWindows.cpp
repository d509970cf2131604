// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <io.h>
#include <random>
#include <sys/stat.h>
#include <system_error>

#include "fuzz/MemoryTrial.h"
#include "support/FileSystem.h"

namespace fuzz {

namespace {

void Require(bool succeeded, const char* what) {
  if (!succeeded) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

// The nearest thing to a file in memory: a temporary one, which the system deletes when it is
// closed.
MemoryTrial::MemoryTrial() {
  const std::string name = "vantrel-trial-" + std::to_string(std::random_device()());
  const auto path = std::filesystem::temp_directory_path() / name;
  descriptor_ = ::_wopen(path.c_str(), _O_RDWR | _O_CREAT | _O_EXCL | _O_BINARY | _O_TEMPORARY,
                         _S_IREAD | _S_IWRITE);
  Require(descriptor_ >= 0, "_wopen");
  path_ = modAllPurpose::Utf8Path(path);
}

MemoryTrial::~MemoryTrial() { ::_close(descriptor_); }

const std::string& MemoryTrial::Fill(std::span<const std::uint8_t> bytes) {
  Require(::_chsize(descriptor_, 0) == 0, "_chsize");
  Require(::_lseek(descriptor_, 0, SEEK_SET) == 0, "_lseek");
  const auto size = static_cast<unsigned>(bytes.size());
  Require(::_write(descriptor_, bytes.data(), size) == static_cast<int>(size), "_write");
  return path_;
}

}  // namespace fuzz
