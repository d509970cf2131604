// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <windows.h>

namespace modAllPurpose {

// The most bytes that one call reads or writes: it counts in 32 bits.
inline constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;

// What others may go on doing with a file that is open: write to it, or delete it.
inline constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// The system's handle that stands in a number.
inline HANDLE Handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

// A handle that was asked for, and is closed where the system gave one.
class OpenHandle {
 public:
  explicit OpenHandle(HANDLE handle) : handle_(handle) {}
  OpenHandle(const OpenHandle&) = delete;
  OpenHandle& operator=(const OpenHandle&) = delete;
  ~OpenHandle() {
    if (IsOpen()) ::CloseHandle(handle_);
  }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

// A search for names; closing one that the system refused does nothing.
struct CloseSearch {
  void operator()(HANDLE search) const { ::FindClose(search); }
};
using OpenSearch = std::unique_ptr<void, CloseSearch>;

}  // namespace modAllPurpose
