// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mutex>
#include <string>

#include "c3d/FileState.h"
#include "python/Failures.h"

namespace python {

// An open trial that any number of threads may read, one at a time.
//
// Nothing here knows of the interpreter, and every member is called without its lock: what holds
// the lock of a trial never waits for that of the interpreter, so the two cannot wait for each
// other.
class OpenedTrial {
 public:
  // Opens the file at that path with all of its labels. Throws OpenFailure and DataFailure.
  explicit OpenedTrial(std::string file);

  const std::string& File() const { return file_; }

  // What the opening found. It stays as it is and may be looked at at any time, the file aside.
  const modVantrel::FileState& Known() const { return state_; }

  // What `work` answers when it is given the open file. Throws ClosedFailure behind Close, and
  // DataFailure for a run-time error.
  template <typename Work>
  auto Read(Work work) const {
    const std::lock_guard lock(mutex_);
    if (isClosed_) throw ClosedFailure{file_};
    try {
      return work(state_);
    } catch (const modAllPurpose::RuntimeError& error) {
      throw DataFailure{file_, error};
    }
  }

  // Waits for what another thread reads. A second close does nothing.
  void Close();
  bool IsClosed() const;

 private:
  std::string file_;
  mutable std::mutex mutex_;
  modVantrel::FileState state_;
  bool isClosed_ = false;
};

}  // namespace python
