// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"

namespace modVantrel {

// The one class that reads the C3D file. Positions are counted from 1 and moved by every read.
//
// Each read is checked against the file: a position below 1 is error 63, a read that the file
// cannot fill is error 62, wherever it points. Bytes are buffered, so that walking a chain of small
// records does not cost a system call a field.
class BinaryFile {
 public:
  // Opens `path` (UTF-8) and stands at position 1. Errors as RandomAccessFile::Open.
  void Open(const std::string& path);
  bool IsOpen() const { return file_.IsOpen(); }

  void Close() noexcept;

  // Bytes in the file now.
  std::uint64_t Size() const { return file_.Size(); }

  // Error 63 where `position` is below 1. A position past the end is an error only when read.
  void Seek(std::int32_t position) {
    if (position < 1) {
      throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::BadRecordNumber);
    }
    offset_ = static_cast<std::uint64_t>(position) - 1;
  }

  // The position of the next byte; error 6 where 32 bits cannot hold it.
  std::int32_t Position() const;

  std::uint8_t ReadByte();
  std::int16_t ReadInteger();
  // The four bytes of a stored float, read little-endian.
  std::uint32_t ReadSingleBits();
  // `size` characters of Windows-1252 text, as UTF-8.
  std::string ReadText(std::size_t size);

  // The next `count` bytes; valid until the next call.
  std::span<const std::byte> Read(std::size_t count) {
    if (!IsBuffered(count)) Fill(count);
    const auto start = static_cast<std::size_t>(offset_ - bufferOffset_);
    offset_ += count;
    return std::span<const std::byte>(buffer_).subspan(start, count);
  }

  // Moves over `count` bytes, which the file must hold.
  void Skip(std::uint64_t count);

  // Error 62 unless at least `count` bytes are left. Call it before allocating for them.
  void RequireLeft(std::uint64_t count) const;

  // How many bytes a read may fetch beyond those asked for. Walking one label through the frames
  // sets it to fit the frames' size; ReadAhead restores it.
  static constexpr std::size_t kDefaultReadAhead = std::size_t{64} * 1024;

  // Forgets the buffered bytes, so that the next read sees the file as it is now.
  void ForgetBuffer();

  // A look at the file as it is now: begins by forgetting what is buffered, and all looks taken
  // while it lives are parts of it and share its bytes. A walk of the parameters is one, and so are
  // the many walks of an open.
  class Look {
   public:
    explicit Look(BinaryFile& file) : file_(file) {
      if (file_.looks_++ == 0) file_.ForgetBuffer();
    }
    Look(const Look&) = delete;
    Look& operator=(const Look&) = delete;
    ~Look() { --file_.looks_; }

   private:
    BinaryFile& file_;
  };

  // Sets the read-ahead of a file for the lifetime of this object.
  class ReadAhead {
   public:
    ReadAhead(BinaryFile& file, std::size_t bytes) : file_(file), previous_(file.readAhead_) {
      file_.readAhead_ = bytes;
    }
    ReadAhead(const ReadAhead&) = delete;
    ReadAhead& operator=(const ReadAhead&) = delete;
    ~ReadAhead() { file_.readAhead_ = previous_; }

   private:
    BinaryFile& file_;
    std::size_t previous_;
  };

 private:
  bool IsBuffered(std::uint64_t count) const {
    if (offset_ < bufferOffset_) return false;
    const std::uint64_t start = offset_ - bufferOffset_;
    return start <= bufferedBytes_ && count <= bufferedBytes_ - start;
  }
  void Fill(std::size_t count);

  modAllPurpose::RandomAccessFile file_;
  std::uint64_t offset_ = 0;  // of the next byte, from 0
  std::vector<std::byte> buffer_;
  std::uint64_t bufferOffset_ = 0;
  std::size_t bufferedBytes_ = 0;
  std::size_t readAhead_ = kDefaultReadAhead;
  int looks_ = 0;  // that live now
};

}  // namespace modVantrel
