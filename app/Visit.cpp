// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Visit.h"

#include <algorithm>
#include <utility>

#include "support/FileSystem.h"
#include "support/Text.h"

namespace app {

namespace {

bool IsOneFile(const std::string& path, const std::string& other) {
  return path == other || modAllPurpose::OneSpelling(path) == modAllPurpose::OneSpelling(other) ||
         modAllPurpose::IsSameFile(path, other);
}

// As if it had not been read yet; what is left out stays so.
void ForgetReading(VisitTrial& trial) {
  trial.Values.reset();
  trial.Failure.clear();
  trial.Findings.clear();
  trial.IsChecked = false;
}

VisitTrial TrialAt(const std::string& path) {
  VisitTrial trial;
  trial.Path = path;
  return trial;
}

}  // namespace

VisitTrial* Visit::Find(const std::string& path) {
  const auto found = std::ranges::find(trials_, path, &VisitTrial::Path);
  return found == trials_.end() ? nullptr : &*found;
}

std::vector<VisitTrial>::iterator Visit::SameFile(const std::string& path) {
  return std::ranges::find_if(trials_,
                              [&](const VisitTrial& trial) { return IsOneFile(trial.Path, path); });
}

bool Visit::Add(const std::string& path) {
  const auto known = SameFile(path);
  const bool isNew = known == trials_.end();
  VisitTrial& trial = isNew ? trials_.emplace_back(TrialAt(path)) : *known;
  trial.WasAdded = true;
  if (!trial.Failure.empty()) ForgetReading(trial);
  return isNew;
}

bool Visit::Follow(const std::string& path) {
  const bool had = !trials_.empty() && trials_.front().IsTheForms;
  if (had && trials_.front().Path == path) return false;
  if (had && trials_.front().WasAdded) {
    trials_.front().IsTheForms = false;
  } else if (had) {
    trials_.erase(trials_.begin());
  }
  if (path.empty()) return had;
  const auto added = SameFile(path);
  VisitTrial trial = TrialAt(path);
  if (added != trials_.end()) {
    trial = std::move(*added);
    trials_.erase(added);
    if (!trial.Failure.empty()) ForgetReading(trial);
  }
  trial.IsTheForms = true;
  trials_.insert(trials_.begin(), std::move(trial));
  return true;
}

void Visit::Remove(std::size_t trial) {
  trials_.erase(trials_.begin() + static_cast<std::ptrdiff_t>(trial));
}

void Visit::Take(const std::string& path, const std::string& label, ReadTrial read) {
  VisitTrial* trial = Find(path);
  if (trial == nullptr) return;
  trial->Failure = std::move(read.Failure);
  trial->Values = std::move(read.Values);
  trial->Labels = std::move(read.Labels);
  trial->OverTime = label;
}

void Visit::Take(const std::string& path, const std::string& label, ReadLabel read) {
  VisitTrial* trial = Find(path);
  if (trial == nullptr || !trial->Values || trial->OverTime != label) return;
  trial->Failure = std::move(read.Failure);
  trial->Values->OverTime = std::move(read.OverTime);
}

std::vector<std::string> Visit::AskFor(const std::string& label) {
  std::vector<std::string> paths;
  for (const std::size_t i : OnPages()) {
    VisitTrial& trial = trials_[i];
    if (trial.OverTime == label) continue;
    trial.OverTime = label;
    trial.Values->OverTime.clear();
    paths.push_back(trial.Path);
  }
  return paths;
}

void Visit::GiveUp(const std::set<std::string>& paths, const std::string& reason) {
  for (VisitTrial& trial : trials_) {
    if (paths.contains(trial.Path)) trial.Failure = reason;
    if (trial.Values && trial.Values->OverTime.empty()) trial.OverTime.clear();
  }
}

void Visit::Forget() {
  for (VisitTrial& trial : trials_) ForgetReading(trial);
}

void Visit::Forget(const std::string& path) {
  if (VisitTrial* trial = Find(path)) ForgetReading(*trial);
}

void Visit::SetLeftOut(std::size_t trial, const StrideOfTrial& stride, bool isLeftOut) {
  auto& leftOut = trials_.at(trial).LeftOut;
  if (isLeftOut) {
    leftOut.insert(stride);
  } else {
    leftOut.erase(stride);
  }
}

void Visit::ShowAllStrides() {
  for (VisitTrial& trial : trials_) trial.LeftOut.clear();
}

std::vector<std::size_t> Visit::OnPages() const {
  std::vector<std::size_t> shown;
  for (std::size_t i = 0; i < trials_.size(); ++i) {
    if (trials_[i].IsShown && trials_[i].Values) shown.push_back(i);
  }
  return shown;
}

pages::PageSet Visit::Pages(pages::PageChoice choice) const {
  std::vector<pages::TrialValues> values;
  choice.LeftOut.clear();
  for (const std::size_t i : OnPages()) {
    for (const auto& [side, number] : trials_[i].LeftOut) {
      choice.LeftOut.insert({values.size(), side, number});
    }
    values.push_back(*trials_[i].Values);
  }
  return pages::MakePages(values, choice);
}

std::vector<TrialToRead> Visit::ToTabulate() const {
  std::vector<TrialToRead> trials;
  for (const std::size_t i : OnPages()) trials.push_back({trials_[i].Path, trials_[i].LeftOut});
  return trials;
}

std::vector<std::string> Visit::Labels() const {
  std::vector<std::string> labels;
  std::set<std::string> known;
  for (const std::size_t i : OnPages()) {
    for (const std::string& label : trials_[i].Labels) {
      if (known.insert(modAllPurpose::SearchKey(label)).second) labels.push_back(label);
    }
  }
  return labels;
}

}  // namespace app
