// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/FrameData.h"

// What one reading of the frame data tells of many points.
namespace modVantrel {

// Frames one behind the other, by their indices from 1.
struct FrameRange {
  std::int32_t First = 1;
  std::int32_t Last = 0;

  std::int32_t Count() const { return Last - First + 1; }
  bool Meets(const FrameRange& other) const { return First <= other.Last && other.First <= Last; }

  friend bool operator==(const FrameRange&, const FrameRange&) = default;
};

// In which frames a point is not seen.
struct PointGaps {
  std::int32_t Index = 0;  // of the point, from 1
  std::int32_t UnseenCount = 0;
  FrameRange Longest;            // the first of the longest
  std::vector<FrameRange> Gaps;  // in order; the last ones are left out where a file has millions
};

struct PointSurvey {
  std::int32_t FrameCount = 0;        // whole frames that were read
  std::vector<PointGaps> Points;      // in the order asked for
  std::vector<PointSamples> Samples;  // likewise; empty where a value does not fit a float
};

// How many whole frames the file holds, at most PointFrameCount; 0 where their size is not known.
std::int32_t WholeFrameCount(const FileState& state);

// Reads the whole frames once, from the first to the last: the gaps of `points`, and all samples of
// `kept`, both indices from 1, which the header must count. Errors 57 and, where the file shrinks
// meanwhile, 62.
PointSurvey SurveyPoints(const FileState& state, std::span<const std::int32_t> points,
                         std::span<const std::int32_t> kept);

}  // namespace modVantrel
