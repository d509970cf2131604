// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "c3d/PointSurvey.h"
#include "gait/CheckText.h"
#include "gait/CheckWalk.h"
#include "gait/Checks.h"
#include "gait/StrideEvents.h"

namespace modVantrel {

namespace {

// A stride and the frames from its first to its closing strike.
struct StrideFrames {
  std::string Name;
  FrameRange Frames;
};

std::vector<StrideFrames> FramesOfStrides(const FileState& state) {
  std::vector<StrideFrames> strides;
  for (const StrideRecord& stride : state.GaitEvents.ValidStrides) {
    strides.push_back({StrideText(stride),
                       {FrameNearestTo(state, stride.StartStrikeTime),
                        FrameNearestTo(state, stride.StopStrikeTime)}});
  }
  return strides;
}

// Gaps stand in the order of their frames.
bool MeetsAny(const FrameRange& frames, const std::vector<FrameRange>& gaps) {
  const auto gap = std::ranges::lower_bound(gaps, frames.First, {}, &FrameRange::Last);
  return gap != gaps.end() && gap->Meets(frames);
}

// The points whose gaps count: markers that were given a name.
std::vector<std::int32_t> MarkersOf(const CheckedTrial& trial) {
  std::vector<std::int32_t> markers;
  const auto& labels = trial.State.PointLabels;
  for (std::int32_t i = 1; i <= labels.Count(); ++i) {
    if (labels[i].starts_with('*') || trial.Kinds->KindOf(labels[i]) != PointKind::Marker) continue;
    markers.push_back(i);
  }
  return markers;
}

// ", inside Left stride 2", and which other strides are touched.
std::string StridesTouched(const PointGaps& point, const std::vector<StrideFrames>& strides,
                           bool isOnePoint) {
  std::vector<std::string> byLongest;
  std::vector<std::string> byOthers;
  for (const StrideFrames& stride : strides) {
    if (stride.Frames.Meets(point.Longest)) {
      byLongest.push_back(stride.Name);
    } else if (MeetsAny(stride.Frames, point.Gaps)) {
      byOthers.push_back(stride.Name);
    }
  }
  if (byLongest.empty() && byOthers.empty()) return strides.empty() ? "" : ", outside all strides";
  std::string text = byLongest.empty() ? "" : fmt::format(", inside {}", Listed(byLongest));
  if (!byOthers.empty()) {
    text += fmt::format("{} {}", byLongest.empty() ? ", others inside" : "; others touch",
                        Listed(byOthers));
  }
  const bool isOne = byLongest.size() + byOthers.size() == 1;
  return text + fmt::format(" ({} left out of the means of {})",
                            isOne ? "this stride is" : "these strides are",
                            isOnePoint ? "this marker" : "these markers");
}

bool HaveSameGaps(const PointGaps& left, const PointGaps& right) {
  return left.UnseenCount == right.UnseenCount && left.Gaps == right.Gaps;
}

// Adds what is said of points that have the same gaps.
class GapFindings {
 public:
  GapFindings(const CheckedTrial& trial, std::int32_t frames, Findings& findings)
      : trial_(trial), frames_(frames), findings_(findings) {}

  void Add(const PointGaps& point) { Add({NameOf(point)}, point); }

  // Many points that are lost together are one finding: the subject was elsewhere.
  void Add(const std::vector<const PointGaps*>& points) {
    constexpr std::size_t kManyPoints = 4;
    if (points.size() < kManyPoints) {
      for (const PointGaps* point : points) Add(*point);
      return;
    }
    Add(TextsOf(points, [this](const PointGaps* point) { return NameOf(*point); }),
        *points.front());
  }

 private:
  std::string NameOf(const PointGaps& point) const { return Shown(trial_.PointName(point.Index)); }

  void Add(const std::vector<std::string>& names, const PointGaps& point) {
    const bool isOne = names.size() == 1;
    const std::string who = fmt::format("{} {}", Listed(names), isOne ? "is" : "are");
    if (point.UnseenCount == frames_) {
      findings_.Add("point-never-seen", names.front(),
                    fmt::format("{} not seen in any of the {}: there {} and no positions.", who,
                                Counted(frames_, "frame"), isOne ? "is a label" : "are labels"));
      return;
    }
    constexpr double kPercent = 100;
    findings_.Add(
        "point-gaps", names.front(),
        fmt::format("{} not seen in {}{} of {} frames ({:.1f} %), the longest gap is "
                    "{}{}.",
                    who, isOne ? "" : "the same ", point.UnseenCount, frames_,
                    kPercent * point.UnseenCount / frames_, Counted(point.Longest.Count(), "frame"),
                    StridesTouched(point, strides_, isOne)));
  }

  const CheckedTrial& trial_;
  std::int32_t frames_;
  Findings& findings_;
  std::vector<StrideFrames> strides_ = FramesOfStrides(trial_.State);
};

void CheckGaps(const CheckedTrial& trial, const PointSurvey& survey, Findings& findings) {
  std::map<std::pair<std::int32_t, std::int32_t>, std::vector<std::vector<const PointGaps*>>> alike;
  for (const PointGaps& point : survey.Points) {
    if (point.UnseenCount == 0) continue;
    auto& groups = alike[{point.UnseenCount, point.Longest.First}];
    const auto group = std::ranges::find_if(
        groups, [&point](const auto& points) { return HaveSameGaps(*points.front(), point); });
    if (group == groups.end()) {
      groups.push_back({&point});
    } else {
      group->push_back(&point);
    }
  }
  GapFindings gaps(trial, survey.FrameCount, findings);
  for (const auto& [key, groups] : alike) {
    for (const auto& points : groups) gaps.Add(points);
  }
}

}  // namespace

void CheckFrames(const CheckedTrial& trial, Findings& findings) {
  const FileState& state = trial.State;
  const ToeMarkers toes = FindToeMarkers(state);
  const PointSurvey survey = SurveyPoints(state, MarkersOf(trial), toes.Indices());
  if (survey.FrameCount > 0) CheckGaps(trial, survey, findings);
  CheckWalk(trial, toes, survey, findings);
}

}  // namespace modVantrel
