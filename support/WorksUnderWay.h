// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

// What the two systems share of Interruption.h. Nothing else uses it.
namespace modAllPurpose::worksUnderWay {

// Whoever raises `ending` looks at `count` behind that, and whoever lowers `count` looks at
// `ending` behind that, so that one of them sees that nothing is under way any more.
inline std::atomic<int> count = 0;
inline std::atomic<bool> ending = false;
static_assert(std::atomic<int>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

// Rests while the program ends, for a thread between its works. Where the system does not end the
// program in a thread of its own, the thread that ended the last work does it.
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
