// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/Text.h"

#include <algorithm>
#include <array>

namespace modAllPurpose {

namespace {

// Code points of the Windows-1252 bytes 0x80 to 0x9F; all other bytes are their own code point.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char16_t CodePoint(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kHighControls[byte - 0x80U] : byte;
}

char ContinuationByte(unsigned code, unsigned shift) {
  return static_cast<char>(0x80U | ((code >> shift) & 0x3FU));
}

void AppendUtf8(char32_t codePoint, std::string& text) {
  const unsigned code = codePoint;
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0U | (code >> 6U));
    text += ContinuationByte(code, 0);
  } else if (code < 0x10000) {
    text += static_cast<char>(0xE0U | (code >> 12U));
    text += ContinuationByte(code, 6);
    text += ContinuationByte(code, 0);
  } else {
    text += static_cast<char>(0xF0U | (code >> 18U));
    text += ContinuationByte(code, 12);
    text += ContinuationByte(code, 6);
    text += ContinuationByte(code, 0);
  }
}

constexpr bool IsFirstOfPair(char16_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
constexpr bool IsSecondOfPair(char16_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

// Upper-cases the two-byte UTF-8 character at `lead`, `trail`. The letters outside ASCII that
// Windows-1252 holds in both cases all take two bytes in either case.
void UpperCaseTwoBytes(char& lead, char& trail) {
  const auto first = static_cast<unsigned char>(lead);
  const auto second = static_cast<unsigned char>(trail);
  if (first == 0xC3 && second >= 0xA0 && second <= 0xBE && second != 0xB7) {  // U+00E0..U+00FE
    trail = static_cast<char>(second - 0x20);
  } else if (first == 0xC3 && second == 0xBF) {  // U+00FF, whose capital is U+0178
    lead = static_cast<char>(0xC5);
    trail = static_cast<char>(0xB8);
  } else if (first == 0xC5 && (second == 0x93 || second == 0xA1 || second == 0xBE)) {  // oe, s, z
    trail = static_cast<char>(second - 1);
  }
}

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

}  // namespace

std::string& TrimInPlace(std::string& text) {
  text.erase(text.find_last_not_of(' ') + 1);
  text.erase(0, text.find_first_not_of(' '));
  return text;
}

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  for (std::size_t i = 0; i < upper.size(); ++i) {
    const auto byte = static_cast<unsigned char>(upper[i]);
    if (byte >= 'a' && byte <= 'z') {
      upper[i] = static_cast<char>(byte - 0x20);
    } else if ((byte == 0xC3 || byte == 0xC5) && i + 1 < upper.size()) {
      UpperCaseTwoBytes(upper[i], upper[i + 1]);
      ++i;
    }
  }
  return upper;
}

std::string SearchKey(std::string_view typedName) { return UpperCase(Trimmed(typedName)); }

std::string_view StripAtNul(std::string_view text) { return text.substr(0, text.find('\0')); }

std::string_view WithoutFilling(std::string_view text) {
  constexpr std::string_view kFilling("\0 ", 2);
  return text.substr(0, text.find_last_not_of(kFilling) + 1);
}

std::string PadRightToWidth(std::string_view text, std::int32_t width) {
  const auto wanted = static_cast<std::size_t>(std::max(width, 0));
  const auto lengthWithoutTrailingBlanks = text.find_last_not_of(' ') + 1;
  std::string padded(text);
  if (lengthWithoutTrailingBlanks <= wanted) padded.resize(wanted, ' ');
  return padded;
}

std::string_view WithoutExtension(std::string_view path) {
  constexpr int kExtensionLength = 4;
  const auto isContinuation = [](char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
  };
  for (int i = 0; i < kExtensionLength && !path.empty(); ++i) {
    while (path.size() > 1 && isContinuation(path.back())) path.remove_suffix(1);
    path.remove_suffix(1);
  }
  return path;
}

std::size_t CharacterLength(std::string_view text) {
  const std::size_t length = LengthBehind(ByteAt(text, 0));
  if (length > text.size()) return 0;
  if (length > 1 && !MayFollow(ByteAt(text, 0), ByteAt(text, 1))) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if ((ByteAt(text, i) & 0xC0U) != 0x80U) return 0;
  }
  return length;
}

std::string WithReplacements(std::string_view text) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
  std::string valid;
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    valid += length == 0 ? kReplacement : text.substr(0, length);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return valid;
}

std::string FromWindows1252(std::span<const std::byte> bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const std::byte byte : bytes) AppendUtf8(CodePoint(static_cast<unsigned char>(byte)), text);
  return text;
}

std::string FromUtf16(std::u16string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string utf8;
  for (std::size_t i = 0; i < text.size(); ++i) {
    char32_t codePoint = text[i];
    if (IsFirstOfPair(text[i]) && i + 1 < text.size() && IsSecondOfPair(text[i + 1])) {
      codePoint = 0x10000U + ((text[i] - 0xD800U) << 10U) + (text[i + 1] - 0xDC00U);
      ++i;
    } else if (IsFirstOfPair(text[i]) || IsSecondOfPair(text[i])) {
      codePoint = kReplacement;
    }
    AppendUtf8(codePoint, utf8);
  }
  return utf8;
}

}  // namespace modAllPurpose
