// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "support/RandomAccessFile.h"

namespace modVantrel {

// A text file read line by line, as UTF-8 made of its Windows-1252 bytes. A line ends at LF, CR LF
// or the end of the file.
class TextLines {
 public:
  // Errors as RandomAccessFile::Open.
  void Open(const std::string& path);
  bool IsOpen() const { return file_.IsOpen(); }
  void Close() noexcept;

  // Back to the first line.
  void Rewind();

  // Whether no character is left to read.
  bool AtEnd();

  // The next line without its end; empty at the end of the file.
  std::string Next();

 private:
  bool HasByte();

  modAllPurpose::RandomAccessFile file_;
  std::uint64_t offset_ = 0;  // behind the buffered bytes
  std::string buffer_;
  std::size_t used_ = 0;
};

}  // namespace modVantrel
