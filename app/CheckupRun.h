// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>

#include "app/Background.h"
#include "gait/Checkup.h"

namespace app {

// How many findings of each severity a checkup has.
struct CheckupCounts {
  int Errors = 0;
  int Warnings = 0;
  int Notes = 0;
};

// Runs the checkup of a trial beside the window: on a thread of its own, which opens the file by
// itself. One that is begun anew or stopped ends where it next reads, and is never heard of again.
class CheckupRun : public QObject {
  Q_OBJECT

 public:
  using Check = std::function<std::vector<modVantrel::Finding>(const std::string& file)>;

  // `check` runs on another thread; it is StoppableWork.
  explicit CheckupRun(Check check, QObject* parent = nullptr);

  // Checks that file in place of the one before.
  void Start(const std::string& file);
  bool IsBusy() const { return background_.IsBusy(); }
  void Stop() { background_.Cancel(); }

 signals:
  void Done(const app::CheckupCounts& counts);
  // The memory did not suffice for it.
  void Failed();

 private:
  Background::Then Run(const std::string& file);

  Check check_;
  Background background_{nullptr};  // ends before what it runs
};

}  // namespace app
