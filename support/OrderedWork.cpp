// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/OrderedWork.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <map>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "support/Interruption.h"
#include "support/StoppableWork.h"

namespace modAllPurpose {

namespace {

constexpr std::chrono::milliseconds kMoment{50};

// What one work has made and nobody has taken yet.
struct Made {
  std::deque<std::string> Pieces;
  std::optional<AtItsTurn> Left;  // once it has ended
  std::exception_ptr Error;       // or with what it ended

  bool HasEnded() const { return Left || Error; }
};

// The works between the threads that do them and the one that takes what they make.
class Workshop {
 public:
  explicit Workshop(const OrderedWork& works) : works_(works) {}

  // Does works until there is none left. For each of the threads.
  void DoWorks() {
    const StoppableWork stoppable(stopped_);
    try {
      while (const auto number = Next()) Do(*number);
    } catch (const WorkStopped&) {
      // Nobody waits for it.
    }
  }

  // Takes all that the works make, in their order.
  void TakeAll() {
    for (; turn_ < works_.Count; PassOn()) {
      while (!TakeSome()) {
      }
      works_.Meanwhile();
    }
    works_.Finish();
  }

  void Stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    room_.notify_all();
  }

 private:
  // The next work to begin; nothing where there is none. Waits while too much is waiting.
  std::optional<std::size_t> Next() {
    std::unique_lock lock(mutex_);
    room_.wait(lock, [&] {
      return stopped_ || next_ >= works_.Count || next_ == turn_ || waiting_ < works_.MostWaiting;
    });
    if (stopped_ || next_ >= works_.Count) return std::nullopt;
    return next_++;
  }

  void Do(std::size_t number) {
    try {
      AtItsTurn left = works_.Work(number, [&](std::string piece) { Post(number, piece); });
      End(number, {{}, std::move(left), nullptr});
    } catch (const WorkStopped&) {
      throw;
    } catch (...) {
      End(number, {{}, {}, std::current_exception()});
    }
  }

  void Post(std::size_t number, std::string& piece) {
    std::unique_lock lock(mutex_);
    Made& made = made_[number];
    room_.wait(lock, [&] {
      const bool isAlone = number == turn_ && made.Pieces.empty();
      return stopped_ || isAlone || waiting_ + piece.size() <= works_.MostWaiting;
    });
    if (stopped_) throw WorkStopped();
    waiting_ += piece.size();
    made.Pieces.push_back(std::move(piece));
    if (number == turn_) ready_.notify_one();
  }

  void End(std::size_t number, Made ended) {
    const std::lock_guard lock(mutex_);
    Made& made = made_[number];
    made.Left = std::move(ended.Left);
    made.Error = ended.Error;
    if (made.Left) waiting_ += made.Left->Bytes;
    if (number == turn_) ready_.notify_one();
  }

  // What the work whose turn it is has made by now, after a moment at most.
  Made WhatIsReady() {
    std::unique_lock lock(mutex_);
    Made& made = made_[turn_];
    ready_.wait_for(lock, kMoment, [&] { return !made.Pieces.empty() || made.HasEnded(); });
    return std::exchange(made, {});
  }

  void MakeRoom(std::size_t bytes) {
    const std::lock_guard lock(mutex_);
    waiting_ -= bytes;
    room_.notify_all();
  }

  // Takes what is ready of the work whose turn it is; true once that was all of it.
  bool TakeSome() {
    Made made = WhatIsReady();
    if (made.Pieces.empty() && !made.HasEnded()) works_.Meanwhile();
    for (std::string& piece : made.Pieces) {
      const std::size_t size = piece.size();
      works_.Take(std::move(piece));
      MakeRoom(size);
      works_.Meanwhile();
    }
    if (made.Error) std::rethrow_exception(made.Error);
    if (!made.Left) return false;
    if (made.Left->Do) made.Left->Do();
    MakeRoom(made.Left->Bytes);
    return true;
  }

  void PassOn() {
    const std::lock_guard lock(mutex_);
    made_.erase(turn_++);
    room_.notify_all();
  }

  const OrderedWork& works_;
  std::atomic<bool> stopped_ = false;
  std::mutex mutex_;  // of all below
  std::condition_variable room_;
  std::condition_variable ready_;
  std::map<std::size_t, Made> made_;
  std::size_t next_ = 0;
  std::size_t turn_ = 0;  // changed by the taking thread alone
  std::size_t waiting_ = 0;
};

// Does the works one after the other where there is no thread but the caller's.
class WorkAlone {
 public:
  explicit WorkAlone(const OrderedWork& works) : works_(works) {}

  void DoAll() {
    for (std::size_t number = 0; number < works_.Count; ++number) {
      const AtItsTurn left = Do(number);
      if (left.Do) left.Do();
      works_.Meanwhile();
    }
    works_.Finish();
  }

 private:
  AtItsTurn Do(std::size_t number) {
    try {
      return works_.Work(number, [this](std::string piece) { Take(std::move(piece)); });
    } catch (const WorkStopped&) {
      if (error_) std::rethrow_exception(error_);
      throw;
    }
  }

  // What fails here is no error of the work that posts, which might make something of it.
  void Take(std::string piece) {
    try {
      works_.Take(std::move(piece));
      works_.Meanwhile();
    } catch (...) {
      error_ = std::current_exception();
      throw WorkStopped();
    }
  }

  const OrderedWork& works_;
  std::exception_ptr error_;
};

// The threads of a workshop, which end with this object. There may be fewer than asked for, and
// none where the system gives none.
class Crew {
 public:
  Crew(Workshop& workshop, std::size_t count) : workshop_(workshop) {
    threads_.reserve(count);
    try {
      while (threads_.size() < count) threads_.emplace_back([&workshop] { workshop.DoWorks(); });
    } catch (const std::system_error&) {
      // The system gives no more of them.
    }
  }
  Crew(const Crew&) = delete;
  Crew& operator=(const Crew&) = delete;
  ~Crew() {
    workshop_.Stop();
    // One of them may have met the end of the program already.
    const InterruptibleWait wait;
    for (std::thread& thread : threads_) thread.join();
  }

  bool IsEmpty() const { return threads_.empty(); }

 private:
  Workshop& workshop_;
  std::vector<std::thread> threads_;
};

}  // namespace

void WorkInOrder(const OrderedWork& works) {
  Workshop workshop(works);
  const Crew crew(workshop, std::min(works.Count, static_cast<std::size_t>(works.Threads)));
  if (crew.IsEmpty()) {
    WorkAlone(works).DoAll();
  } else {
    workshop.TakeAll();
  }
}

int ThreadsFor(int jobs) {
  if (jobs > 0) return jobs;
  return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

}  // namespace modAllPurpose
