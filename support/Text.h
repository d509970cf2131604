// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// All texts inside the program are UTF-8; the only exception are bytes on their way in.
namespace modAllPurpose {

// Removes the blanks (character 32, nothing else) at both ends of `text` and returns it.
std::string& TrimInPlace(std::string& text);

// `text` without the blanks at its ends.
std::string_view Trimmed(std::string_view text);

// The upper case of the letters that Windows-1252 holds in both cases, one to one; every other
// character stays, so the result has as many bytes as `text`.
std::string UpperCase(std::string_view text);

// A typed name in the form in which names are compared: trimmed and in upper case.
std::string SearchKey(std::string_view typedName);

// The text before the first NUL character, or all of it.
std::string_view StripAtNul(std::string_view text);

// `text` without the NUL characters and blanks at its end, with which some writers fill a field.
std::string_view WithoutFilling(std::string_view text);

// `text` brought to `width` characters by adding blanks or dropping trailing ones; a text that is
// longer without its trailing blanks comes back unchanged. For ASCII texts: a byte is a character.
std::string PadRightToWidth(std::string_view text, std::int32_t width);

// `path` without its last four characters, the dot and three letters of its extension.
std::string_view WithoutExtension(std::string_view path);

// The bytes of the UTF-8 character that `text`, which must not be empty, begins with; 0 where it
// begins with none.
std::size_t CharacterLength(std::string_view text);

// `text` with U+FFFD in place of each byte that is no UTF-8.
std::string WithReplacements(std::string_view text);

// Windows-1252 bytes as UTF-8. The five codes that the code page leaves open keep their number.
std::string FromWindows1252(std::span<const std::byte> bytes);

// UTF-16 as UTF-8. Half a pair is U+FFFD.
std::string FromUtf16(std::u16string_view text);

}  // namespace modAllPurpose
