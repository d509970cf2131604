// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

#include "fuzz/MemoryTrial.h"

namespace fuzz {

namespace {

void Require(bool succeeded, const char* what) {
  if (!succeeded) throw std::system_error(errno, std::generic_category(), what);
}

}  // namespace

MemoryTrial::MemoryTrial() : descriptor_(::memfd_create("trial", MFD_CLOEXEC)) {
  Require(descriptor_ >= 0, "memfd_create");
  path_ = "/proc/self/fd/" + std::to_string(descriptor_);
}

MemoryTrial::~MemoryTrial() { ::close(descriptor_); }

const std::string& MemoryTrial::Fill(std::span<const std::uint8_t> bytes) {
  Require(::ftruncate(descriptor_, 0) == 0, "ftruncate");
  const auto written = ::pwrite(descriptor_, bytes.data(), bytes.size(), 0);
  Require(written == static_cast<ssize_t>(bytes.size()), "pwrite");
  return path_;
}

}  // namespace fuzz
