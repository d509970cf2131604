// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "support/Descriptor.h"
#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"

namespace modAllPurpose {

void RandomAccessFile::Open(const std::string& path) {
  Close();
  // Without O_NONBLOCK, opening a pipe that nobody writes to would wait for ever.
  const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (descriptor < 0) throw FileErrorFromErrno(errno);
  handle_ = descriptor;
  struct stat status {};
  if (::fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) {
    Close();
    throw RuntimeError(ErrorNumber::PathFileAccessError);
  }
}

void RandomAccessFile::Close() noexcept {
  if (IsOpen()) ::close(Descriptor(handle_));
  handle_ = kNoHandle;
}

std::uint64_t RandomAccessFile::Size() const {
  struct stat status {};
  if (::fstat(Descriptor(handle_), &status) != 0) throw RuntimeError(ErrorNumber::DeviceIoError);
  return static_cast<std::uint64_t>(status.st_size);
}

std::size_t RandomAccessFile::ReadAt(std::uint64_t offset, std::span<std::byte> into) const {
  std::size_t filled = 0;
  while (filled < into.size()) {
    const auto count = ::pread(Descriptor(handle_), into.data() + filled, into.size() - filled,
                               static_cast<off_t>(offset + filled));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw RuntimeError(ErrorNumber::DeviceIoError);
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
  }
  return filled;
}

}  // namespace modAllPurpose
