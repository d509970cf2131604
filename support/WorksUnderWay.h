// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

// What the two systems share of Interruption.h. Nothing else uses it.
namespace modAllPurpose::worksUnderWay {

// Both are all that a signal handler touches.
inline std::atomic<int> count = 0;
inline std::atomic<bool> ending = false;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

// Rests while the program ends in another thread.
[[noreturn]] void AwaitTheEnd();

inline void Begin() {
  ++count;
  if (!ending) return;
  --count;
  AwaitTheEnd();
}

inline void End() {
  --count;
  if (ending) AwaitTheEnd();
}

}  // namespace modAllPurpose::worksUnderWay
