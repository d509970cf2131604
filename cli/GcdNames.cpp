// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/GcdNames.h"

#include <algorithm>
#include <chrono>
#include <iterator>
#include <utility>

#include "support/FileSystem.h"
#include "support/StoppableWork.h"

namespace cli {

using modAllPurpose::OneSpelling;

// Whether the names of all trials in front of `number` are known, and none of those that are at
// work has one of `names`.
bool GcdNames::AreSettled(std::size_t number, const std::vector<std::string>& names) const {
  if (unknown_ < number) return false;
  return std::all_of(claimed_.begin(), claimed_.lower_bound(number), [&](const auto& claim) {
    return std::ranges::find_first_of(claim.second, names) == claim.second.end();
  });
}

void GcdTurn::SayNames(std::vector<std::string> names) {
  if (!names.empty()) names_.claimed_[number_] = std::move(names);
  if (number_ >= names_.unknown_) names_.known_.insert(number_);
  while (names_.known_.erase(names_.unknown_) > 0) ++names_.unknown_;
  names_.changed_.notify_all();
}

void GcdTurn::Claim(const std::string& trial, const std::vector<std::string>& names) {
  trial_ = OneSpelling(trial);
  std::vector<std::string> spelled;
  std::ranges::transform(names, std::back_inserter(spelled), OneSpelling);
  std::unique_lock lock(names_.mutex_);
  SayNames(spelled);
  constexpr std::chrono::milliseconds kMoment{50};
  while (!names_.AreSettled(number_, spelled)) {
    names_.changed_.wait_for(lock, kMoment);
    modAllPurpose::StoppableWork::EndIfStopped();
  }
}

std::string GcdTurn::WriterOf(const std::string& name) const {
  const std::string spelled = OneSpelling(name);
  const std::lock_guard lock(names_.mutex_);
  const auto found = names_.writers_.find(spelled);
  return found == names_.writers_.end() ? std::string() : found->second;
}

void GcdTurn::Wrote(const std::string& name) {
  const std::string spelled = OneSpelling(name);
  const std::lock_guard lock(names_.mutex_);
  names_.writers_[spelled] = trial_;
}

GcdTurn::~GcdTurn() {
  const std::lock_guard lock(names_.mutex_);
  names_.claimed_.erase(number_);
  SayNames({});
}

}  // namespace cli
