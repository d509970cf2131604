// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <unistd.h>

#include "support/Interruption.h"
#include "support/WorksUnderWay.h"

namespace modAllPurpose {

namespace {

constexpr std::array kInterruptions = {SIGINT, SIGTERM, SIGHUP, SIGQUIT};

// The work of one thread.
struct Work {
  int Depth = 0;
  sigset_t MaskBefore{};
  sigset_t HeldOff{};  // the interruptions that did not wait before
};
thread_local Work own;

bool IsIgnored(int signal) {
  struct sigaction action {};
  return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

// Ignored ones are left alone: a signal that is blocked waits although it is ignored.
sigset_t InterruptionsNotIgnored() {
  sigset_t set;
  ::sigemptyset(&set);
  for (const int signal : kInterruptions) {
    if (!IsIgnored(signal)) ::sigaddset(&set, signal);
  }
  return set;
}

// The first interruption that came; 0 before one has.
std::atomic<int> interruption = 0;
static_assert(std::atomic<int>::is_always_lock_free);

// Sent again with the signal's own effect, the program ends with the status of the signal; the
// first process of a container, which no signal of its own ends, with the one that a shell says for
// it.
[[noreturn]] void EndAsInterrupted() {
  constexpr int kEndedBySignal = 128;
  const int signal = interruption;
  struct sigaction action {};
  action.sa_handler = SIG_DFL;
  ::sigaction(signal, &action, nullptr);
  sigset_t itself;
  ::sigemptyset(&itself);
  ::sigaddset(&itself, signal);
  ::pthread_sigmask(SIG_UNBLOCK, &itself, nullptr);
  ::raise(signal);
  ::_exit(kEndedBySignal + signal);
}

// Lets the interruptions come that waited for this thread; behind one it rests for good.
void LetThemCome() {
  ::pthread_sigmask(SIG_SETMASK, &own.MaskBefore, nullptr);
  if (worksUnderWay::ending) worksUnderWay::AwaitTheEnd();
}

// Never waits here: the thread that is met may hold what a work needs for its end, a lock of the
// heap for one. Where works are under way it goes on, and the last of them ends the program.
extern "C" void EndBetweenWorks(int signal) {
  int none = 0;
  interruption.compare_exchange_strong(none, signal);
  worksUnderWay::ending = true;
  if (worksUnderWay::count == 0) EndAsInterrupted();
}

}  // namespace

void worksUnderWay::AwaitTheEnd() {
  if (count == 0) EndAsInterrupted();
  for (;;) ::pause();
}

void LetInterruptionsWait() {
  struct sigaction action {};
  action.sa_handler = EndBetweenWorks;
  action.sa_mask = InterruptionsNotIgnored();
  action.sa_flags = SA_RESTART;  // what was under way in the thread that was met goes on
  for (const int signal : kInterruptions) {
    if (!IsIgnored(signal)) ::sigaction(signal, &action, nullptr);
  }
}

UnbrokenWork::UnbrokenWork() {
  if (own.Depth++ > 0) return;
  own.HeldOff = InterruptionsNotIgnored();
  ::pthread_sigmask(SIG_BLOCK, &own.HeldOff, &own.MaskBefore);
  for (const int signal : kInterruptions) {
    if (::sigismember(&own.MaskBefore, signal) == 1) ::sigdelset(&own.HeldOff, signal);
  }
  worksUnderWay::Begin();
}

UnbrokenWork::~UnbrokenWork() {
  if (--own.Depth > 0) return;
  worksUnderWay::End();
  LetThemCome();
}

InterruptibleWait::InterruptibleWait() {
  if (own.Depth == 0) return;
  worksUnderWay::End();
  LetThemCome();
}

InterruptibleWait::~InterruptibleWait() {
  if (own.Depth == 0) return;
  ::pthread_sigmask(SIG_BLOCK, &own.HeldOff, nullptr);
  worksUnderWay::Begin();
}

bool UnbrokenWork::IsInterrupted() {
  if (worksUnderWay::ending) return true;
  sigset_t waiting;
  ::sigpending(&waiting);
  return std::ranges::any_of(kInterruptions, [&](int signal) {
    return ::sigismember(&own.HeldOff, signal) == 1 && ::sigismember(&waiting, signal) == 1;
  });
}

}  // namespace modAllPurpose
