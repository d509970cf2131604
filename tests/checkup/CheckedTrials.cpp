// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/checkup/CheckedTrials.h"

#include <algorithm>
#include <fstream>

#include <gtest/gtest.h>

#include "tests/GaitTrials.h"

namespace tests {

using modVantrel::Finding;

sample::TrialBuilder CleanWalkWithoutEvents() {
  sample::TrialBuilder walk;
  walk.StoredAs(sample::Storage::Single).Frames(1, 300).Rate(100);
  walk.AddPoint("LTOE", Moving({0, 100, 40}, {16, 0, 0}));
  walk.AddPoint("RTOE", Moving({0, -100, 40}, {16, 0, 0}));
  walk.AddPoint("LKNE", Moving({0, 90, 480}, {16, 0, 0}));
  walk.AddAnalog("Fz1", "Force", [](std::int32_t) { return 1.0F; }).SamplesPerFrame(2);
  walk.SetParam("POINT", sample::TextParam("UNITS", "mm"));
  walk.SetParam("SUBJECTS", sample::TextParam("GENDER", "Female"));
  walk.SetParam("SUBJECTS", sample::TextParam("DOB", "2014-03-02"));
  walk.SetParam("TRIAL", sample::TextParam("DATE", "2026-05-11"));
  return walk;
}

sample::TrialBuilder CleanWalk() {
  sample::TrialBuilder walk = CleanWalkWithoutEvents();
  AddStrideEvents(walk, "Left", {0.2F, 0.4F, 1.0F, 1.2F, 1.8F});
  walk.AddEvent("Right", "Foot Off", 2.0F).AddEvent("Right", "Foot Strike", 2.6F);
  return walk;
}

sample::TrialBuilder& Hide(sample::TrialBuilder& builder, std::size_t point, std::int32_t first,
                           std::int32_t last) {
  for (std::int32_t frame = first; frame <= last; ++frame) builder.NotSeen(point, frame);
  return builder;
}

std::vector<Finding> Check(const sample::Trial& trial, const modVantrel::SummaryStrides& summary) {
  const TemporaryFolder folder;
  trial.WriteTo(folder / "trial.c3d");
  return modVantrel::CheckTrial((folder / "trial.c3d").string(), summary);
}

std::vector<Finding> Check(const sample::TrialBuilder& builder,
                           const modVantrel::SummaryStrides& summary) {
  return Check(builder.Build(), summary);
}

std::vector<Finding> CheckBytes(const std::string& bytes) {
  const TemporaryFolder folder;
  std::ofstream(folder / "trial.c3d", std::ios::binary) << bytes;
  return modVantrel::CheckTrial((folder / "trial.c3d").string());
}

std::vector<std::string> Places(const std::vector<Finding>& findings) {
  std::vector<std::string> places;
  for (const Finding& finding : findings) places.push_back(finding.Code + " at " + finding.Place);
  return places;
}

std::string MessageOf(const std::vector<Finding>& findings, const std::string& code) {
  EXPECT_EQ(std::ranges::count(findings, code, &Finding::Code), 1) << code;
  const auto found = std::ranges::find(findings, code, &Finding::Code);
  return found == findings.end() ? std::string() : found->Message;
}

bool HasCode(const std::vector<Finding>& findings, const std::string& code) {
  return std::ranges::find(findings, code, &Finding::Code) != findings.end();
}

}  // namespace tests
