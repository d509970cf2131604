// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QObject>

#include "c3d/BinaryFile.h"
#include "gait/Checkup.h"

namespace app {

// How many findings of each severity a checkup has.
struct CheckupCounts {
  int Errors = 0;
  int Warnings = 0;
  int Notes = 0;
};

// Runs the checkup of a trial beside the window: on a thread of its own, which opens the file by
// itself. One that is begun anew or stopped is never heard of again and ends by itself within a
// part of a second; nothing waits for it but the end of this object.
class CheckupRun : public QObject {
  Q_OBJECT

 public:
  using Check = std::function<std::vector<modVantrel::Finding>(const std::string& file,
                                                               modVantrel::StopQuestion stop)>;

  // `check` runs on other threads.
  explicit CheckupRun(Check check, QObject* parent = nullptr);
  ~CheckupRun() override;

  // Checks that file in place of the one before.
  void Start(const std::string& file);
  void Stop();

 signals:
  void Done(const app::CheckupCounts& counts);
  // The memory did not suffice for it.
  void Failed();

 private:
  void Run(const std::string& file, int number);
  void Report(int number, const std::function<void()>& tell);

  Check check_;
  int number_ = 0;  // of the run that is heard
};

}  // namespace app
