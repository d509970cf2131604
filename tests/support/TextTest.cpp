// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>

#include <gtest/gtest.h>

#include "support/Text.h"

namespace {

using namespace modAllPurpose;

std::string FromByte(unsigned value) {
  const std::array<std::byte, 1> bytes{static_cast<std::byte>(value)};
  return FromWindows1252(bytes);
}

TEST(TrimInPlace, RemovesBlanksAtBothEndsOnly) {
  std::string text = "  a b  ";
  EXPECT_EQ(TrimInPlace(text), "a b");
  EXPECT_EQ(text, "a b");
}

TEST(TrimInPlace, KeepsTabsAndNuls) {
  std::string text(" \ta\0 ", 5);
  EXPECT_EQ(TrimInPlace(text), std::string("\ta\0", 3));
}

TEST(TrimInPlace, BlanksOnlyGiveTheEmptyText) {
  std::string blanks = "    ";
  EXPECT_EQ(TrimInPlace(blanks), "");
  std::string nothing;
  EXPECT_EQ(TrimInPlace(nothing), "");
}

TEST(Trimmed, AgreesWithTrimInPlace) {
  for (const std::string text : {"", " ", "a", " a", "a ", "  a b  ", "\ta "}) {
    std::string trimmed = text;
    EXPECT_EQ(Trimmed(text), TrimInPlace(trimmed)) << '"' << text << '"';
  }
}

TEST(FromWindows1252, MapsTheCodePage) {
  EXPECT_EQ(FromByte('A'), "A");
  EXPECT_EQ(FromByte(0x80), "\u20AC");
  EXPECT_EQ(FromByte(0x9F), "\u0178");
  EXPECT_EQ(FromByte(0xFC), "\u00FC");
  EXPECT_EQ(FromByte(0xFF), "\u00FF");
}

TEST(FromWindows1252, UndefinedBytesKeepTheirCode) {
  EXPECT_EQ(FromByte(0x81), "\xC2\x81");
  EXPECT_EQ(FromByte(0x8D), "\xC2\x8D");
  EXPECT_EQ(FromByte(0x8F), "\xC2\x8F");
  EXPECT_EQ(FromByte(0x90), "\xC2\x90");
  EXPECT_EQ(FromByte(0x9D), "\xC2\x9D");
}

TEST(UpperCase, CoversTheLettersOfTheCodePageOneToOne) {
  EXPECT_EQ(UpperCase("lkneeAngles_1"), "LKNEEANGLES_1");
  EXPECT_EQ(UpperCase("\u00E4\u00F6\u00FC\u00E9\u00F8\u00FE"),
            "\u00C4\u00D6\u00DC\u00C9\u00D8\u00DE");
  EXPECT_EQ(UpperCase("\u0161\u0153\u017E\u00FF"), "\u0160\u0152\u017D\u0178");
}

TEST(UpperCase, LeavesEverythingElse) {
  for (const std::string text :
       {"\u00DF", "\u00F7", "\u00B5", "\u0192", "\u20AC", "\u03B1", "\xC3", "[]{}"}) {
    EXPECT_EQ(UpperCase(text), text);
  }
}

TEST(UpperCase, KeepsTheNumberOfBytesOfEveryCharacterOfTheCodePage) {
  for (unsigned code = 0; code < 256; ++code) {
    EXPECT_EQ(UpperCase(FromByte(code)).size(), FromByte(code).size()) << code;
  }
}

TEST(StripAtNul, CutsAtTheFirstNul) {
  EXPECT_EQ(StripAtNul(std::string_view("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(StripAtNul("abc"), "abc");
  EXPECT_EQ(StripAtNul(std::string_view("\0", 1)), "");
}

TEST(PadRightToWidth, PadsToTheWidth) {
  EXPECT_EQ(PadRightToWidth("Right Foot Strike", 20), "Right Foot Strike   ");
  EXPECT_EQ(PadRightToWidth("None Other", 20), "None Other          ");
  EXPECT_EQ(PadRightToWidth("", 3), "   ");
}

TEST(PadRightToWidth, NeverCutsAText) {
  EXPECT_EQ(PadRightToWidth("abcdefghij", 7), "abcdefghij");
  EXPECT_EQ(PadRightToWidth("abcdefghij  ", 7), "abcdefghij  ");
  EXPECT_EQ(PadRightToWidth("abcdefg", 7), "abcdefg");
}

TEST(PadRightToWidth, CutsTrailingBlanksBeyondTheWidth) {
  EXPECT_EQ(PadRightToWidth("abc      ", 4), "abc ");
}

TEST(FromUtf16, GivesEachCharacterItsBytes) {
  EXPECT_EQ(FromUtf16(u""), "");
  EXPECT_EQ(FromUtf16(u"a\u007F"), "a\x7F");
  EXPECT_EQ(FromUtf16(u"\u0080\u00E4\u07FF"), "\xC2\x80\xC3\xA4\xDF\xBF");
  EXPECT_EQ(FromUtf16(u"\u0800\u20AC\uFFFF"), "\xE0\xA0\x80\xE2\x82\xAC\xEF\xBF\xBF");
  EXPECT_EQ(FromUtf16(u"\U00010000x\U0010FFFF"), "\xF0\x90\x80\x80x\xF4\x8F\xBF\xBF");
}

TEST(FromUtf16, MarksHalfAPair) {
  const std::string mark = "\xEF\xBF\xBD";
  EXPECT_EQ(FromUtf16({u"\xD800", 1}), mark);
  EXPECT_EQ(FromUtf16({u"\xD83Dx", 2}), mark + "x");
  EXPECT_EQ(FromUtf16({u"\xDE00\xD83D", 2}), mark + mark);
}

}  // namespace
