// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/WindowsText.h"

#include <windows.h>

#include "support/RuntimeError.h"

namespace modAllPurpose {

namespace {

// What a conversion of the system makes: the characters in whatever place it is told to fill. The
// first call only counts them.
template <typename Text, typename Convert>
Text Converted(bool isEmpty, Convert&& convert) {
  if (isEmpty) return {};
  Text text(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
  if (text.empty()) throw RuntimeError(ErrorNumber::PathFileAccessError);
  convert(text.data(), static_cast<int>(text.size()));
  return text;
}

}  // namespace

std::string Utf8Text(std::wstring_view text, HalfCharacters halves) {
  const DWORD flags = halves == HalfCharacters::Refused ? WC_ERR_INVALID_CHARS : 0;
  return Converted<std::string>(text.empty(), [&](char* into, int size) {
    return ::WideCharToMultiByte(CP_UTF8, flags, text.data(), static_cast<int>(text.size()), into,
                                 size, nullptr, nullptr);
  });
}

std::wstring Utf16Text(std::string_view utf8) {
  return Converted<std::wstring>(utf8.empty(), [&](wchar_t* into, int size) {
    return ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(),
                                 static_cast<int>(utf8.size()), into, size);
  });
}

}  // namespace modAllPurpose
