// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CheckupRun.h"

#include <exception>
#include <utility>

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

void CheckupRun::Start(const std::string& file) {
  Stop();
  background_.Run([this, file] { return Run(file); });
}

Background::Then CheckupRun::Run(const std::string& file) {
  try {
    return [this, counts = CountsOf(check_(file))] { emit Done(counts); };
  } catch (const std::exception&) {
    return [this] { emit Failed(); };
  }
}

}  // namespace app
