// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/RandomAccessFile.h"

#include <utility>

namespace modAllPurpose {

RandomAccessFile::RandomAccessFile(RandomAccessFile&& other) noexcept
    : handle_(std::exchange(other.handle_, kNoHandle)) {}

RandomAccessFile& RandomAccessFile::operator=(RandomAccessFile&& other) noexcept {
  if (this != &other) {
    Close();
    handle_ = std::exchange(other.handle_, kNoHandle);
  }
  return *this;
}

RandomAccessFile::~RandomAccessFile() { Close(); }

}  // namespace modAllPurpose
