// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/Escapes.h"

#include <cstddef>

#include <fmt/format.h>

namespace cli {

namespace {

unsigned ByteAt(std::string_view text, std::size_t i) {
  return static_cast<unsigned char>(text[i]);
}

// The bytes of a character that begins with `first`; 0 where none does.
std::size_t LengthBehind(unsigned first) {
  if (first < 0x80) return 1;
  if (first < 0xC2 || first > 0xF4) return 0;
  if (first < 0xE0) return 2;
  return first < 0xF0 ? 3 : 4;
}

// Whether `second` may follow `first`: a longer form than needed, half a pair of UTF-16 and what
// lies behind the last character are no characters.
bool MayFollow(unsigned first, unsigned second) {
  if (first == 0xE0) return second >= 0xA0 && second <= 0xBF;
  if (first == 0xED) return second >= 0x80 && second <= 0x9F;
  if (first == 0xF0) return second >= 0x90 && second <= 0xBF;
  if (first == 0xF4) return second >= 0x80 && second <= 0x8F;
  return second >= 0x80 && second <= 0xBF;
}

// The bytes of the character that `text` begins with; 0 where it begins with none.
std::size_t CharacterLength(std::string_view text) {
  const std::size_t length = LengthBehind(ByteAt(text, 0));
  if (length > text.size()) return 0;
  if (length > 1 && !MayFollow(ByteAt(text, 0), ByteAt(text, 1))) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((ByteAt(text, i) & 0xC0U) != 0x80U) return 0;
  }
  return length;
}

std::string EscapedCharacter(std::string_view character) {
  const unsigned first = ByteAt(character, 0);
  if (first == '\n') return "\\n";
  if (first == '\r') return "\\r";
  if (first == '\t') return "\\t";
  if (first < 0x20 || first == 0x7F) return fmt::format("\\x{:02X}", first);
  if (first == 0xC2 && ByteAt(character, 1) < 0xA0) {
    return fmt::format("\\u{:04X}", ByteAt(character, 1));
  }
  return std::string(character);
}

}  // namespace

std::string Escaped(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    if (length == 0) {
      escaped += fmt::format("\\x{:02X}", ByteAt(text, 0));
      text.remove_prefix(1);
    } else {
      escaped += EscapedCharacter(text.substr(0, length));
      text.remove_prefix(length);
    }
  }
  return escaped;
}

}  // namespace cli
