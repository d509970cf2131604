// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/NeighbourSearch.h"

#include <exception>
#include <utility>

namespace app {

NeighbourSearch::NeighbourSearch(Find find, QObject* parent)
    : QObject(parent), find_(std::move(find)) {}

void NeighbourSearch::Start(const std::string& trial) {
  if (trial == trial_ && IsBusy()) return;
  trial_ = trial;
  const int request = ++request_;
  if (!trial.empty()) background_.Run([this, trial, request] { return Run(trial, request); });
}

Background::Then NeighbourSearch::Run(const std::string& trial, int request) {
  if (request != request_) return {};
  Neighbours found;
  try {
    found = find_(trial);
  } catch (const std::exception&) {
    // A folder that is too large for the memory has none.
  }
  return [this, trial, found = std::move(found)] { Tell(trial, found); };
}

void NeighbourSearch::Tell(const std::string& trial, const Neighbours& neighbours) {
  if (trial == trial_) emit Found(neighbours);
}

}  // namespace app
