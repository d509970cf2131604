// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QObject>
#include <QTimer>

#include "app/CheckupRun.h"
#include "app/StatusText.h"
#include "c3d/FileState.h"

namespace app {

class StatusLine;

// Keeps the status line at what is known of the open trial, and has it checked once it is shown.
class TrialStatus : public QObject {
  Q_OBJECT

 public:
  // Both must outlive this object; `check` runs on other threads.
  TrialStatus(StatusLine& line, const modVantrel::FileState& state, CheckupRun::Check check,
              QObject* parent);

  // Another file is open, or the same one is to be checked anew; empty: none.
  void FileChanged(const std::string& file);
  // Whether a checkup runs, or will once the file is shown.
  bool IsChecking() const { return untilShown_.isActive() || checkup_.IsBusy(); }
  // No checkup runs on.
  void Stop();

 private:
  void Say(CheckupStage stage, const CheckupCounts& counts = {});

  StatusLine& line_;
  const modVantrel::FileState& state_;
  std::string file_;
  QTimer untilShown_;
  CheckupRun checkup_;
};

}  // namespace app
