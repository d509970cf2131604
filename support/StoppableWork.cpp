// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/StoppableWork.h"

#include <utility>

namespace modAllPurpose {

namespace {

// NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): each thread has its own.
thread_local const StoppableWork::Question* isStoppedHere = nullptr;

}  // namespace

StoppableWork::StoppableWork(Question isStopped) : isStopped_(std::move(isStopped)) {
  isStoppedHere = &isStopped_;
}

StoppableWork::~StoppableWork() { isStoppedHere = nullptr; }

void StoppableWork::EndIfStopped() {
  if (isStoppedHere != nullptr && (*isStoppedHere)()) throw WorkStopped();
}

}  // namespace modAllPurpose
