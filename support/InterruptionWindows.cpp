// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <windows.h>

#include "support/Interruption.h"

namespace modAllPurpose {

namespace {

std::atomic<int> worksUnderWay = 0;
std::atomic<bool> ending = false;
thread_local int depth = 0;

[[noreturn]] void AwaitTheEnd() {
  for (;;) ::Sleep(INFINITE);
}

// The system runs this in a thread of its own, beside the work.
BOOL WINAPI EndBetweenWorks(DWORD /*event*/) {
  ending = true;
  while (worksUnderWay > 0) ::Sleep(1);
  constexpr BOOL kGoOnEnding = FALSE;
  return kGoOnEnding;
}

void BeginWork() {
  ++worksUnderWay;
  if (!ending) return;
  --worksUnderWay;
  AwaitTheEnd();
}

void EndWork() {
  --worksUnderWay;
  if (ending) AwaitTheEnd();
}

}  // namespace

void LetInterruptionsWait() { ::SetConsoleCtrlHandler(EndBetweenWorks, TRUE); }

UnbrokenWork::UnbrokenWork() {
  if (depth++ == 0) BeginWork();
}

UnbrokenWork::~UnbrokenWork() {
  if (--depth == 0) EndWork();
}

InterruptibleWait::InterruptibleWait() {
  if (depth > 0) EndWork();
}

InterruptibleWait::~InterruptibleWait() {
  if (depth > 0) BeginWork();
}

bool UnbrokenWork::IsInterrupted() { return ending; }

}  // namespace modAllPurpose
