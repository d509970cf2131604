// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

// Texts of the system, which are UTF-16, and of the program, which are UTF-8. On Windows only.
namespace modAllPurpose {

// What becomes of half a character: a mark in its place, or error 75 for the text.
enum class HalfCharacters { Marked, Refused };

std::string Utf8Text(std::wstring_view text, HalfCharacters halves = HalfCharacters::Marked);

// Error 75 where `utf8` is no UTF-8.
std::wstring Utf16Text(std::string_view utf8);

}  // namespace modAllPurpose
