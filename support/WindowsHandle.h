// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <windows.h>

namespace modAllPurpose {

// The most bytes that one call reads or writes: it counts in 32 bits.
inline constexpr std::size_t kMostAtOnce = std::size_t{1} << 30U;

// The system's handle that stands in a number.
inline HANDLE Handle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

}  // namespace modAllPurpose
