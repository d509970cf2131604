// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <functional>

namespace modAllPurpose {

// Ends work that nobody waits for any more. It is no RuntimeError: whatever makes a sentence of
// those lets it pass, up to whoever started the work.
class WorkStopped {};

// While it lives, work on this thread ends with WorkStopped where it next reads from a trial, or
// draws a page for a file, once `isStopped` answers with true. One a thread at a time.
class StoppableWork {
 public:
  using Question = std::function<bool()>;

  explicit StoppableWork(Question isStopped);
  // The same once a flag is set, which must last as long.
  explicit StoppableWork(const std::atomic<bool>& isStopped)
      : StoppableWork([&isStopped] { return isStopped.load(); }) {}
  StoppableWork(const StoppableWork&) = delete;
  StoppableWork& operator=(const StoppableWork&) = delete;
  ~StoppableWork();

  // Throws WorkStopped where work on this thread is to end.
  static void EndIfStopped();

 private:
  Question isStopped_;
};

}  // namespace modAllPurpose
