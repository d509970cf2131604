// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/StoppableWork.h"

namespace modAllPurpose {

namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): each thread has its own.
thread_local const std::atomic<bool>* isStoppedHere = nullptr;

}  // namespace

StoppableWork::StoppableWork(const std::atomic<bool>& isStopped) { isStoppedHere = &isStopped; }

StoppableWork::~StoppableWork() { isStoppedHere = nullptr; }

void StoppableWork::EndIfStopped() {
  if (isStoppedHere != nullptr && *isStoppedHere) throw WorkStopped();
}

}  // namespace modAllPurpose
