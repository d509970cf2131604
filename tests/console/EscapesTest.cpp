// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "console/Escapes.h"

namespace {

using console::Escaped;
using console::EscapedLines;

TEST(Escaped, LeavesWhatIsReadableAsItStands) {
  for (const std::string text :
       {"", "walk 1.c3d", R"(C:\trials\walk.c3d)", "'\"?*~", "M\u00FCller \u20AC \u6B69\u884C.c3d",
        "\u00A0\u07FF\u0800\uD7FF\uE000\uFFFF\U00010000\U0010FFFF"}) {
    EXPECT_EQ(Escaped(text), text);
  }
}

TEST(Escaped, ShowsControlCharacters) {
  EXPECT_EQ(Escaped("a\nb\rc\td"), R"(a\nb\rc\td)");
  EXPECT_EQ(Escaped("\x1B[31mred\x1B[0m"), R"(\x1B[31mred\x1B[0m)");
  EXPECT_EQ(Escaped(std::string("\0\x01\x1F\x7F", 4)), R"(\x00\x01\x1F\x7F)");
  EXPECT_EQ(Escaped("\u0080\u009B31m\u009F"), R"(\u0080\u009B31m\u009F)");
}

TEST(Escaped, ShowsBytesThatAreNoUtf8) {
  EXPECT_EQ(Escaped("a\xFF.c3d"), R"(a\xFF.c3d)");
  EXPECT_EQ(Escaped("\x9B\x80"), R"(\x9B\x80)") << "no first byte";
  EXPECT_EQ(Escaped("\xC3"), R"(\xC3)") << "cut";
  EXPECT_EQ(Escaped("\xE2\x82x"), R"(\xE2\x82x)") << "cut inside";
  EXPECT_EQ(Escaped("\xF0\x9F\x98"), R"(\xF0\x9F\x98)");
  EXPECT_EQ(Escaped("\xC0\x9B"), R"(\xC0\x9B)") << "a longer form than needed";
  EXPECT_EQ(Escaped("\xE0\x82\x9B"), R"(\xE0\x82\x9B)");
  EXPECT_EQ(Escaped("\xF0\x80\x82\x9B"), R"(\xF0\x80\x82\x9B)");
  EXPECT_EQ(Escaped("\xED\xA0\x80"), R"(\xED\xA0\x80)") << "half a pair";
  EXPECT_EQ(Escaped("\xF4\x90\x80\x80\xF5"), R"(\xF4\x90\x80\x80\xF5)") << "behind the last one";
}

TEST(EscapedLines, KeepTheirEndsAlone) {
  EXPECT_EQ(EscapedLines("a\tb\nc\n\n\x1B[2J"), "a\\tb\nc\n\n\\x1B[2J");
  EXPECT_EQ(EscapedLines(""), "");
}

}  // namespace
