// SPDX-License-Identifier: GPL-3.0-or-later

#include <windows.h>

#include "support/Interruption.h"
#include "support/WorksUnderWay.h"

namespace modAllPurpose {

namespace {

thread_local int depth = 0;

// The system runs this in a thread of its own, beside the work.
BOOL WINAPI EndBetweenWorks(DWORD /*event*/) {
  worksUnderWay::ending = true;
  while (worksUnderWay::count > 0) ::Sleep(1);
  constexpr BOOL kGoOnEnding = FALSE;
  return kGoOnEnding;
}

}  // namespace

void worksUnderWay::AwaitTheEnd() {
  for (;;) ::Sleep(INFINITE);
}

void LetInterruptionsWait() { ::SetConsoleCtrlHandler(EndBetweenWorks, TRUE); }

UnbrokenWork::UnbrokenWork() {
  if (depth++ == 0) worksUnderWay::Begin();
}

UnbrokenWork::~UnbrokenWork() {
  if (--depth == 0) worksUnderWay::End();
}

InterruptibleWait::InterruptibleWait() {
  if (depth > 0) worksUnderWay::End();
}

InterruptibleWait::~InterruptibleWait() {
  if (depth > 0) worksUnderWay::Begin();
}

bool UnbrokenWork::IsInterrupted() { return worksUnderWay::ending; }

}  // namespace modAllPurpose
