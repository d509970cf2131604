// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>

namespace modAllPurpose {

// Appends the shortest decimal text that reads back to the same number: 0.1, -12, 1e-05, 1e+16.
// `number` must be finite.
void AppendShortest(std::string& text, float number);
void AppendShortest(std::string& text, double number);

// The same to `place`, which has room for kRoomOfFloat characters; returns the place behind it.
inline constexpr std::size_t kRoomOfFloat = 40;
char* PutShortest(char* place, float number);

}  // namespace modAllPurpose
