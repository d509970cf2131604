// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Background.h"

#include <utility>

#include <QPointer>

#include "support/StoppableWork.h"

namespace app {

void Background::Run(Work work) {
  if (open_ == 0) started_ = 0;
  ++open_;
  ++started_;
  {
    const std::scoped_lock lock(mutex_);
    waiting_.push_back(std::move(work));
  }
  if (thread_.joinable()) {
    wake_.notify_one();
  } else {
    thread_ = std::thread([this] { Loop(); });
  }
  emit Changed();
}

void Background::Cancel() {
  if (thread_.joinable()) {
    {
      const std::scoped_lock lock(mutex_);
      waiting_.clear();
      isStopped_ = true;
    }
    wake_.notify_one();
    thread_.join();
    isStopped_ = false;
  }
  ++run_;
  if (std::exchange(open_, 0) > 0) emit Changed();
}

Background::Work Background::Next() {
  std::unique_lock lock(mutex_);
  wake_.wait(lock, [this] { return isStopped_ || !waiting_.empty(); });
  if (isStopped_) return {};
  Work work = std::move(waiting_.front());
  waiting_.pop_front();
  return work;
}

void Background::Loop() {
  const modAllPurpose::StoppableWork stoppable(isStopped_);
  const std::size_t run = run_;  // a cancel, which changes it, waits for the end of this
  while (const Work work = Next()) {
    try {
      Then then = work();
      QMetaObject::invokeMethod(
          this, [this, run, then = std::move(then)] { Finish(run, then); }, Qt::QueuedConnection);
    } catch (const modAllPurpose::WorkStopped&) {
      return;
    }
  }
}

void Background::Finish(std::size_t run, const Then& then) {
  if (run != run_) return;  // was under way to us when it was cancelled
  --open_;
  // A message box in there may wait until the program ends.
  const QPointer<Background> self(this);
  if (then) then();
  if (!self.isNull()) emit Changed();
}

}  // namespace app
