// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace modAllPurpose {

// From now on an interruption of the program waits until no UnbrokenWork is under way in any of
// its threads: INT, TERM, HUP and QUIT, on Windows Ctrl+C, Ctrl+Break, the end of the console or
// of the session. Meanwhile no other such work begins, and threads that are in none go on. Then the
// program ends as it would have without. A signal that the program was
// started to ignore stays ignored. For a program's start.
void LetInterruptionsWait();

// Work that an interruption must not leave half done is under way as long as one of these lives.
// In the thread that made it an interruption waits for its end, in the others where the program
// called LetInterruptionsWait. One that lives inside another adds nothing.
class UnbrokenWork {
 public:
  UnbrokenWork();
  UnbrokenWork(const UnbrokenWork&) = delete;
  UnbrokenWork& operator=(const UnbrokenWork&) = delete;
  ~UnbrokenWork();

  // Whether an interruption waits for this thread, so that long work is better taken back.
  static bool IsInterrupted();
};

// A wait inside an UnbrokenWork for something that may never come, with nothing half done: while
// one of these lives, an interruption need not wait for this thread. Outside an UnbrokenWork it
// does nothing.
class InterruptibleWait {
 public:
  InterruptibleWait();
  InterruptibleWait(const InterruptibleWait&) = delete;
  InterruptibleWait& operator=(const InterruptibleWait&) = delete;
  ~InterruptibleWait();
};

}  // namespace modAllPurpose
