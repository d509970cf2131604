// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>

namespace modAllPurpose {

// Ends work that nobody waits for any more. It is no RuntimeError: whatever makes a sentence of
// those lets it pass, up to whoever started the work.
class WorkStopped {};

// While it lives, work on this thread ends with WorkStopped where it next reads from a trial, or
// draws a page for a file, after `isStopped`, which must outlive it, has become true. One a thread
// at a time.
class StoppableWork {
 public:
  explicit StoppableWork(const std::atomic<bool>& isStopped);
  StoppableWork(const StoppableWork&) = delete;
  StoppableWork& operator=(const StoppableWork&) = delete;
  ~StoppableWork();

  // Throws WorkStopped where work on this thread is to end.
  static void EndIfStopped();
};

}  // namespace modAllPurpose
