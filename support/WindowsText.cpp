// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/WindowsText.h"

#include <windows.h>

namespace modAllPurpose {

std::string Utf8Text(const wchar_t* text) {
  const auto convert = [&](char* into, int size) {
    return ::WideCharToMultiByte(CP_UTF8, 0, text, -1, into, size, nullptr, nullptr);
  };
  std::string utf8(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  convert(utf8.data(), static_cast<int>(utf8.size()));
  return utf8.substr(0, utf8.find('\0'));  // without the NUL at the end
}

}  // namespace modAllPurpose
