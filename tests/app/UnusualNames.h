// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

namespace tests {

// Names of trials that few programs take, in each of the ways that files of this system can have:
// marks of addresses and patterns, other letters, and on POSIX systems bytes that are no UTF-8.
std::vector<std::string> UnusualNames();

// The last of them, in the order of names too: bytes that are no UTF-8, or a letter of two units.
std::string OddestName();

// A name, without an ending, that is as much markup as one can be here.
std::string NameLikeMarkup();

}  // namespace tests
