// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/TrialStatus.h"

#include <utility>

#include "app/StatusLine.h"

namespace app {

TrialStatus::TrialStatus(StatusLine& line, const modVantrel::FileState& state,
                         CheckupRun::Check check, QObject* parent)
    : QObject(parent), line_(line), state_(state), checkup_(std::move(check)) {
  constexpr int kShown = 100;  // milliseconds; the window is painted first
  untilShown_.setSingleShot(true);
  untilShown_.setInterval(kShown);
  connect(&untilShown_, &QTimer::timeout, this, [this] { checkup_.Start(file_); });
  connect(&checkup_, &CheckupRun::Done, this,
          [this](const CheckupCounts& counts) { Say(CheckupStage::Done, counts); });
  connect(&checkup_, &CheckupRun::Failed, this, [this] { Say(CheckupStage::Failed); });
}

void TrialStatus::FileChanged(const std::string& file) {
  Stop();
  file_ = file;
  line_.Remark({});
  if (file.empty()) {
    line_.Say(StatusWithoutFile());
    return;
  }
  Say(CheckupStage::Running);
  untilShown_.start();
}

void TrialStatus::Stop() {
  untilShown_.stop();
  checkup_.Stop();
}

void TrialStatus::Say(CheckupStage stage, const CheckupCounts& counts) {
  line_.Say(StatusOf(state_, stage, counts));
}

}  // namespace app
