// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <thread>

#include <pybind11/pybind11.h>

namespace python {

// Lets other threads use the interpreter while this one does without it.
//
// Where the program has ended meanwhile, the interpreter would end this thread from within, which
// no destructor survives: the thread rests here until the process is gone.
class OutsideInterpreter {
 public:
  OutsideInterpreter() : thread_(PyEval_SaveThread()) {}
  OutsideInterpreter(const OutsideInterpreter&) = delete;
  OutsideInterpreter& operator=(const OutsideInterpreter&) = delete;
  ~OutsideInterpreter() {
    try {
      if (!isEnding_) Enter();
    } catch (...) {
      // What ends a thread may be caught, but not left behind.
      Rest();
    }
    if (isEnding_) Rest();
  }

  // Does `work` inside, and comes out again. Work that is around it ends where the program has.
  template <typename Work>
  void Inside(Work work) {
    Enter();
    const Leaving leaving(thread_);
    work();
  }

 private:
  // Comes out however the scope is left.
  class Leaving {
   public:
    explicit Leaving(PyThreadState*& thread) : thread_(thread) {}
    Leaving(const Leaving&) = delete;
    Leaving& operator=(const Leaving&) = delete;
    ~Leaving() { thread_ = PyEval_SaveThread(); }

   private:
    PyThreadState*& thread_;
  };

  void Enter() {
    isEnding_ = true;  // unless it returns
    PyEval_RestoreThread(thread_);
    isEnding_ = false;
  }

  [[noreturn]] static void Rest() {
    while (true) std::this_thread::sleep_for(std::chrono::hours(1));
  }

  PyThreadState* thread_;
  bool isEnding_ = false;
};

}  // namespace python
