// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/WindowsPath.h"

#include <algorithm>
#include <windows.h>

namespace modAllPurpose {

namespace {

// The longest path of a folder that the system takes as it is written: it keeps room for a name of
// twelve characters, so that a file may be a little longer.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 13;

bool IsOfDevices(const std::wstring& path) {
  return path.starts_with(LR"(\\?\)") || path.starts_with(LR"(\\.\)");
}

// The system takes no slash for a separator there, and no name of a file holds one.
std::wstring WithoutSlashes(std::wstring path) {
  std::ranges::replace(path, L'/', L'\\');
  return path;
}

}  // namespace

std::wstring WholeWindowsPath(const std::wstring& path) {
  std::wstring whole(::GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  const DWORD length =
      ::GetFullPathNameW(path.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr);
  whole.resize(length < whole.size() ? length : 0);
  return whole;
}

std::wstring OfAnyLength(const std::wstring& path) {
  if (IsOfDevices(path)) return WithoutSlashes(path);
  const std::wstring whole = WholeWindowsPath(path);
  if (whole.size() <= kLongestPlainPath) return path;
  if (IsOfDevices(whole)) return whole;
  if (whole.starts_with(LR"(\\)")) return LR"(\\?\UNC)" + whole.substr(1);
  return LR"(\\?\)" + whole;
}

}  // namespace modAllPurpose
