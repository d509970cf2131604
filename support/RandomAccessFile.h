// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace modAllPurpose {

// A regular file open for reading at any offset. It owns the system's handle and keeps no bytes,
// so a file that shrinks or grows meanwhile is seen as it is at each call.
class RandomAccessFile {
 public:
  RandomAccessFile() = default;
  RandomAccessFile(RandomAccessFile&& other) noexcept;
  RandomAccessFile& operator=(RandomAccessFile&& other) noexcept;
  RandomAccessFile(const RandomAccessFile&) = delete;
  RandomAccessFile& operator=(const RandomAccessFile&) = delete;
  ~RandomAccessFile();

  // Opens the file at `path` (UTF-8). Folders, pipes and devices are refused, without waiting for
  // them, as error 75; a path that cannot be opened fails as FileErrorFromErrno.
  void Open(const std::string& path);
  bool IsOpen() const { return handle_ != kNoHandle; }
  void Close() noexcept;

  // Bytes in the file now.
  std::uint64_t Size() const;

  // Fills `into` from `offset` (from 0) and returns how many bytes there were: fewer than asked
  // only at the end of the file. Error 57 when the device fails.
  std::size_t ReadAt(std::uint64_t offset, std::span<std::byte> into) const;

 private:
  static constexpr std::intptr_t kNoHandle = -1;
  std::intptr_t handle_ = kNoHandle;
};

}  // namespace modAllPurpose
