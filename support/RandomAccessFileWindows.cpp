// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cstdint>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"

namespace modAllPurpose {

namespace {

bool IsRegularFile(HANDLE handle) {
  BY_HANDLE_FILE_INFORMATION information{};
  return ::GetFileType(handle) == FILE_TYPE_DISK &&
         ::GetFileInformationByHandle(handle, &information) != 0 &&
         (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

void RandomAccessFile::Open(const std::string& path) {
  Close();
  if (path.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  // Others may go on writing to the file, or delete it. Only with the backup flag is a folder
  // opened at all, and then refused as one.
  const HANDLE handle = ::CreateFileW(NativePath(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) throw LastFileError();
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  if (!IsRegularFile(handle)) {
    Close();
    throw RuntimeError(ErrorNumber::PathFileAccessError);
  }
}

void RandomAccessFile::Close() noexcept {
  if (IsOpen()) ::CloseHandle(Handle(handle_));
  handle_ = kNoHandle;
}

std::uint64_t RandomAccessFile::Size() const {
  LARGE_INTEGER size{};
  if (::GetFileSizeEx(Handle(handle_), &size) == 0) throw RuntimeError(ErrorNumber::DeviceIoError);
  return static_cast<std::uint64_t>(size.QuadPart);
}

std::size_t RandomAccessFile::ReadAt(std::uint64_t offset, std::span<std::byte> into) const {
  std::size_t filled = 0;
  while (filled < into.size()) {
    const std::uint64_t position = offset + filled;
    OVERLAPPED at{};
    at.Offset = static_cast<DWORD>(position);
    at.OffsetHigh = static_cast<DWORD>(position >> 32U);
    const auto wanted = static_cast<DWORD>(std::min(into.size() - filled, kMostAtOnce));
    DWORD count = 0;
    if (::ReadFile(Handle(handle_), into.data() + filled, wanted, &count, &at) == 0) {
      if (::GetLastError() == ERROR_HANDLE_EOF) break;
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    if (count == 0) break;
    filled += count;
  }
  return filled;
}

}  // namespace modAllPurpose
