// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CheckupRun.h"

#include <exception>
#include <utility>

#include <QThread>

namespace app {

using modVantrel::Finding;
using modVantrel::Severity;

namespace {

CheckupCounts CountsOf(const std::vector<Finding>& findings) {
  CheckupCounts counts;
  for (const Finding& finding : findings) {
    switch (finding.Level) {
      case Severity::Error:
        ++counts.Errors;
        break;
      case Severity::Warning:
        ++counts.Warnings;
        break;
      case Severity::Note:
        ++counts.Notes;
        break;
    }
  }
  return counts;
}

}  // namespace

CheckupRun::CheckupRun(Check check, QObject* parent) : QObject(parent), check_(std::move(check)) {}

CheckupRun::~CheckupRun() {
  Stop();
  for (QThread* thread : findChildren<QThread*>()) thread->wait();
}

void CheckupRun::Start(const std::string& file) {
  Stop();
  QThread* thread = QThread::create([this, file, number = number_] { Run(file, number); });
  thread->setParent(this);
  connect(thread, &QThread::finished, thread, &QObject::deleteLater);
  thread->start(QThread::LowPriority);
}

void CheckupRun::Stop() {
  ++number_;
  for (QThread* thread : findChildren<QThread*>()) thread->requestInterruption();
}

void CheckupRun::Run(const std::string& file, int number) {
  try {
    const auto stop = [] { return QThread::currentThread()->isInterruptionRequested(); };
    Report(number, [this, counts = CountsOf(check_(file, stop))] { emit Done(counts); });
  } catch (const modVantrel::Stopped&) {
    // Nobody waits for it.
  } catch (const std::exception&) {
    Report(number, [this] { emit Failed(); });
  }
}

void CheckupRun::Report(int number, const std::function<void()>& tell) {
  QMetaObject::invokeMethod(
      this,
      [this, number, tell] {
        if (number == number_) tell();
      },
      Qt::QueuedConnection);
}

}  // namespace app
