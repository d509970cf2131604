// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/Escapes.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include <fmt/format.h>

#include "support/Text.h"

namespace console {

namespace {

unsigned ByteAt(std::string_view text, std::size_t i) {
  return static_cast<unsigned char>(text[i]);
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
  const auto isPlain = [](char c) { return c >= ' ' && c <= '~'; };
  if (std::ranges::all_of(text, isPlain)) return std::string(text);
  std::string escaped;
  while (!text.empty()) {
    const std::size_t length = modAllPurpose::CharacterLength(text);
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

std::string EscapedLines(std::string_view lines) {
  std::string escaped;
  for (std::size_t end = lines.find('\n'); end != std::string_view::npos; end = lines.find('\n')) {
    escaped += Escaped(lines.substr(0, end)) + '\n';
    lines.remove_prefix(end + 1);
  }
  return escaped + Escaped(lines);
}

}  // namespace console
