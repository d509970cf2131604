// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckWalk.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include <fmt/format.h>

#include "gait/CheckText.h"
#include "gait/CheckUnits.h"
#include "gait/CubicSpline.h"
#include "gait/StrideEvents.h"
#include "gait/StrideMeasures.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"

namespace modVantrel {

using modAllPurposeNumbers::ToSingle;
using modCubicSpline::SplineCurve;

namespace {

// One toe marker, through the whole frames.
class Toe {
 public:
  Toe(std::string name, const FileState& state, const PointSamples& samples)
      : name_(std::move(name)),
        state_(state),
        samples_(samples),
        isWhole_(std::ranges::none_of(samples, IsMissing)) {
    if (!isWhole_ || samples.IsEmpty()) return;
    modAllPurpose::IgnoringErrors([&] {
      x_ = modCubicSpline::BuildComponentSpline(samples, samples.Count(), Component::X);
      y_ = modCubicSpline::BuildComponentSpline(samples, samples.Count(), Component::Y);
    });
  }

  const std::string& Name() const { return name_; }
  // Whether every frame has a position, so that its spline has one at every time.
  bool IsWhole() const { return isWhole_; }
  bool HasCurves() const { return x_.Count > 1 && y_.Count > 1; }

  bool IsSeenAt(float time) const { return samples_[FrameNearestTo(state_, time)].IsSeen(); }

  // How far the spline goes between two times along X and Y.
  float AlongX(float from, float to) const { return Along(x_, from, to); }
  float AlongY(float from, float to) const { return Along(y_, from, to); }

 private:
  static bool IsMissing(const PointSample& sample) {
    return std::isnan(sample.X) || std::isnan(sample.Y);
  }

  static float Along(const SplineCurve& curve, float from, float to) {
    const double start = SplineValueAt(from, curve);
    return ToSingle(std::fabs(SplineValueAt(to, curve) - start));
  }

  std::string name_;
  const FileState& state_;
  const PointSamples& samples_;
  bool isWhole_;
  SplineCurve x_;
  SplineCurve y_;
};

using Toes = std::array<Toe, 2>;

const Toe& ToeOf(const Toes& toes, GaitSide side) {
  return toes.at(side == GaitSide::Left ? 0 : 1);
}

// The strides whose events all lie in frames that the file holds.
std::vector<StrideRecord> StridesHeld(const CheckedTrial& trial) {
  std::vector<StrideRecord> strides;
  for (const StrideRecord& stride : trial.State.GaitEvents.ValidStrides) {
    if (FrameNearestTo(trial.State, stride.StopStrikeTime) <= trial.FrameCount) {
      strides.push_back(stride);
    }
  }
  return strides;
}

// The strikes that a stride measures, with the toe of their side.
std::array<EventRecord, 3> StrikesOf(const StrideRecord& stride) {
  const auto events = EventsOf(stride);
  return {events[0], events[2], events[4]};
}

bool IsMeasured(const Toes& toes, const StrideRecord& stride) {
  return std::ranges::all_of(StrikesOf(stride), [&toes](const EventRecord& strike) {
    const Toe& toe = ToeOf(toes, strike.Side);
    return toe.HasCurves() && toe.IsSeenAt(strike.Time);
  });
}

// The strikes at which `toe` is not seen, and the strides that need them.
void CheckToeAtStrikes(const Toe& toe, GaitSide side, const std::vector<StrideRecord>& strides,
                       Findings& findings) {
  std::vector<std::string> strikes;
  std::vector<std::string> names;
  for (const StrideRecord& stride : strides) {
    bool isUnseen = false;
    for (const EventRecord& strike : StrikesOf(stride)) {
      if (strike.Side != side || toe.IsSeenAt(strike.Time)) continue;
      isUnseen = true;
      const std::string text = EventText(strike);
      if (std::ranges::find(strikes, text) == strikes.end()) strikes.push_back(text);
    }
    if (isUnseen) names.push_back(StrideText(stride));
  }
  if (!strikes.empty()) {
    findings.Add("toe-markers", toe.Name(),
                 fmt::format("{} is not seen at {}: lengths, speed and axis of {} are missing or "
                             "wrong.",
                             toe.Name(), Listed(strikes), Listed(names)));
  } else if (!toe.IsWhole()) {
    findings.Add("toe-markers", toe.Name(),
                 fmt::format("{} has frames whose position is no number, which spoils its whole "
                             "curve: lengths, speed and axis of all strides are missing or wrong.",
                             toe.Name()));
  }
}

struct WalkStrides {
  std::vector<StrideRecord> AlongX;
  std::vector<StrideRecord> AlongY;
  std::vector<StrideRecord> InPlace;
  double ShortestInPlace = 0;  // metres
};

// Whether a stride is too short to be one of a walk. Rounding of positions to floats does not
// count.
bool IsInPlace(double metres) {
  constexpr double kShortestStride = 0.1;
  constexpr double kRounding = 1e-6;
  return metres < kShortestStride * (1 - kRounding);
}

WalkStrides SortStrides(const CheckedTrial& trial, const Toes& toes,
                        const std::vector<StrideRecord>& strides) {
  WalkStrides walk;
  const double metresPerUnit = MetresPerUnit(trial).value_or(0.001);
  for (const StrideRecord& stride : strides) {
    if (!IsMeasured(toes, stride)) continue;
    const Toe& toe = ToeOf(toes, stride.Side);
    const float x = toe.AlongX(stride.StartStrikeTime, stride.StopStrikeTime);
    const float y = toe.AlongY(stride.StartStrikeTime, stride.StopStrikeTime);
    (AxisOfStride(x, y) == WalkAxis::X ? walk.AlongX : walk.AlongY).push_back(stride);
    const double metres = modAllPurposeNumbers::Hypotenuse(x, y) * metresPerUnit;
    if (!IsInPlace(metres)) continue;
    walk.ShortestInPlace = walk.InPlace.empty() ? metres : std::min(walk.ShortestInPlace, metres);
    walk.InPlace.push_back(stride);
  }
  return walk;
}

void AddWalkFindings(const CheckedTrial& trial, const WalkStrides& walk, Findings& findings) {
  if (!walk.AlongY.empty()) {
    findings.Add("walk-along-y", StrideText(walk.AlongY.front()),
                 fmt::format("The walk goes along Y in {}: GCD files take sagittal curves from "
                             "component 2 there, where most models keep the coronal ones; "
                             "--axes anatomical takes component 1.",
                             Listed(TextsOf(walk.AlongY, StrideText))));
  }
  if (!walk.AlongX.empty() && !walk.AlongY.empty()) {
    findings.Add(
        "walk-turns", StrideText(walk.AlongY.front()),
        fmt::format("Strides go along different axes, X in {}, but Y in {}: the subject turned "
                    "or walked diagonally, and their GCD files show different planes.",
                    Listed(TextsOf(walk.AlongX, StrideText)),
                    Listed(TextsOf(walk.AlongY, StrideText))));
  }
  // Where the scale is not known, neither is a length.
  if (walk.InPlace.empty() || trial.Outcome.Result == OpenResult::ScaleFactorCorrupt) return;
  constexpr double kMillimetres = 1000;
  const bool isOne = walk.InPlace.size() == 1;
  findings.Add(
      "walk-in-place", StrideText(walk.InPlace.front()),
      fmt::format("{} {} shorter than 100 mm ({}{:.1f} mm), as on a treadmill: length, speed and "
                  "direction say nothing there, and summaries leave them out.",
                  Listed(TextsOf(walk.InPlace, StrideText)), isOne ? "is" : "are",
                  isOne ? "" : "the least ", walk.ShortestInPlace * kMillimetres));
}

void CheckToesMissing(const ToeMarkers& toes, Findings& findings) {
  std::vector<std::string> missing;
  if (toes.Left == 0) missing.emplace_back("LTOE");
  if (toes.Right == 0) missing.emplace_back("RTOE");
  findings.Add("toe-markers", missing.front(),
               fmt::format("The trial has no point {}: without both toe markers lengths, speed and "
                           "axis of all strides are missing, and sagittal curves of GCD files are "
                           "zero.",
                           Listed(missing)));
}

}  // namespace

ToeMarkers FindToeMarkers(const FileState& state) {
  if (state.GaitEvents.ValidStrideCount == 0) return {};
  return {GetPointLabelIndex(state, "LTOE"), GetPointLabelIndex(state, "RTOE")};
}

void CheckWalk(const CheckedTrial& trial, const ToeMarkers& toes, const PointSurvey& survey,
               Findings& findings) {
  if (trial.State.GaitEvents.ValidStrideCount == 0) return;
  if (toes.Indices().empty()) return CheckToesMissing(toes, findings);
  if (survey.FrameCount == 0) return;
  const auto strides = StridesHeld(trial);
  const Toes both = {Toe("LTOE", trial.State, survey.Samples[0]),
                     Toe("RTOE", trial.State, survey.Samples[1])};
  CheckToeAtStrikes(both[0], GaitSide::Left, strides, findings);
  CheckToeAtStrikes(both[1], GaitSide::Right, strides, findings);
  AddWalkFindings(trial, SortStrides(trial, both, strides), findings);
}

}  // namespace modVantrel
