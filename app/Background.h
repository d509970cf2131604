// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>

#include <QObject>

namespace app {

// Work of a window off its thread, one piece after the other. Each piece gives back what is to be
// done with its result on the window's thread; that never runs after a cancel, nor once this object
// is gone.
class Background : public QObject {
  Q_OBJECT

 public:
  using Then = std::function<void()>;
  using Work = std::function<Then()>;

  explicit Background(QObject* parent) : QObject(parent) {}
  Background(const Background&) = delete;
  Background& operator=(const Background&) = delete;
  // Waits for as long as a cancel does.
  ~Background() override { Cancel(); }

  // Puts work behind the one that waits. Errors are its own matter.
  void Run(Work work);

  // Ends the work that is under way where it next reads from a file (see StoppableWork), and
  // forgets what waits.
  void Cancel();

  bool IsBusy() const { return open_ > 0; }
  // How many pieces there were since it was last idle, and how many of them are done.
  std::size_t Started() const { return started_; }
  std::size_t Done() const { return started_ - open_; }

 signals:
  // A piece was put in, is done, or all were cancelled.
  void Changed();

 private:
  void Loop();
  Work Next();
  void Finish(std::size_t run, const Then& then);

  std::size_t open_ = 0;
  std::size_t started_ = 0;
  std::size_t run_ = 0;  // counts the cancels
  std::mutex mutex_;
  std::condition_variable wake_;
  std::deque<Work> waiting_;
  std::atomic<bool> isStopped_ = false;
  std::thread thread_;
};

}  // namespace app
