// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string_view>

namespace app {

// Bytes of a text from `Start` up to `End`, counted from 0.
struct TextPlace {
  long Start = 0;
  long End = 0;
};

// The first place of `wanted` in the bytes of `text` from `from` up to `to`, or the last one from
// `to` up to `from` where that lies before it. Both are UTF-8; letters match in both cases, in
// every alphabet that has two. Nothing where there is none, or where `wanted` is empty.
std::optional<TextPlace> FindFolded(std::string_view text, std::string_view wanted, long from,
                                    long to);

}  // namespace app
