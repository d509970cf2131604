// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

namespace modAllPurpose {

// The descriptor that stands in a handle, on systems whose handles are descriptors.
constexpr int Descriptor(std::intptr_t handle) { return static_cast<int>(handle); }

}  // namespace modAllPurpose
