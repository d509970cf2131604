// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FoldedSearch.h"

#include <algorithm>
#include <string>

#include <QChar>

namespace app {

namespace {

bool FollowsInLetter(char byte) {
  constexpr unsigned kMask = 0xC0;
  constexpr unsigned kFollows = 0x80;
  return (static_cast<unsigned char>(byte) & kMask) == kFollows;
}

// The bytes of the letter at the start of `text`; one where they are not UTF-8.
std::size_t LetterLength(std::string_view text) {
  std::size_t length = 1;
  if (static_cast<signed char>(text.front()) >= 0) return length;
  constexpr std::size_t kMost = 4;
  while (length < std::min(kMost, text.size()) && FollowsInLetter(text[length])) ++length;
  return length;
}

char32_t Folded(std::string_view letter) {
  const auto first = static_cast<unsigned char>(letter.front());
  if (letter.size() == 1) {
    if (first >= 'A' && first <= 'Z') return char32_t{first} + ('a' - 'A');
    constexpr char32_t kNoLetter = 0x110000;  // a byte that is not UTF-8 matches itself alone
    return static_cast<signed char>(first) >= 0 ? first : kNoLetter + first;
  }
  constexpr unsigned kFirstBits = 0xFF;
  constexpr unsigned kNextBits = 0x3F;
  char32_t code = first & (kFirstBits >> (letter.size() + 1));
  for (const char byte : letter.substr(1)) {
    code = (code << 6U) | (static_cast<unsigned char>(byte) & kNextBits);
  }
  return QChar::toCaseFolded(code);
}

std::u32string FoldedLetters(std::string_view text) {
  std::u32string letters;
  while (!text.empty()) {
    const std::size_t length = LetterLength(text);
    letters += Folded(text.substr(0, length));
    text.remove_prefix(length);
  }
  return letters;
}

// Whether a letter that starts with `byte` may be `letter`.
bool MayStart(char byte, char32_t letter) {
  if (static_cast<signed char>(byte) < 0) return letter > 0x7F && !FollowsInLetter(byte);
  return Folded({&byte, 1}) == letter;
}

// How many bytes of `text` from its start on match `wanted`; none where they do not.
std::optional<std::size_t> MatchedAtStart(std::string_view text, const std::u32string& wanted) {
  std::size_t at = 0;
  for (const char32_t letter : wanted) {
    if (at >= text.size()) return std::nullopt;
    const std::size_t length = LetterLength(text.substr(at));
    if (Folded(text.substr(at, length)) != letter) return std::nullopt;
    at += length;
  }
  return at;
}

}  // namespace

std::optional<TextPlace> FindFolded(std::string_view text, std::string_view wanted, long from,
                                    long to) {
  const std::u32string letters = FoldedLetters(wanted);
  if (letters.empty()) return std::nullopt;
  const long low = std::min(from, to);
  const long high = std::max(from, to);
  const std::string_view range =
      text.substr(static_cast<std::size_t>(low), static_cast<std::size_t>(high - low));
  const auto size = static_cast<long>(range.size());
  const bool forward = from <= to;
  for (long i = 0; i < size; ++i) {
    const long at = forward ? i : size - 1 - i;
    const std::string_view rest = range.substr(static_cast<std::size_t>(at));
    if (!MayStart(rest.front(), letters.front())) continue;
    if (const auto length = MatchedAtStart(rest, letters)) {
      return TextPlace{low + at, low + at + static_cast<long>(*length)};
    }
  }
  return std::nullopt;
}

}  // namespace app
