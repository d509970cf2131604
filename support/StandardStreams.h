// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace modAllPurpose {

// Keeps the places of those standard streams that the program was started without, which otherwise
// the next files it opens would get: what is printed would stand in them. Reading and writing such
// a stream still fails. For a program's start.
void KeepPlacesOfStandardStreams();

}  // namespace modAllPurpose
