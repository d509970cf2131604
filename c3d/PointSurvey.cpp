// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/PointSurvey.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "c3d/FrameLayout.h"
#include "support/RuntimeError.h"

namespace modVantrel {

namespace {

constexpr std::size_t kReadAhead = std::size_t{256} * 1024;

// Of all points together; 8 MB of memory.
constexpr std::size_t kMostGaps = std::size_t{1} << 20U;

class Survey {
 public:
  Survey(const FileState& state, std::span<const std::int32_t> points,
         std::span<const std::int32_t> kept)
      : state_(state), layout_(LayoutOf(state)), kept_(kept) {
    result_.FrameCount = WholeFrameCount(state);
    for (const std::int32_t index : points) result_.Points.push_back({index, 0, {}, {}});
    open_.resize(points.size());
    for (std::size_t i = 0; i < kept.size(); ++i) {
      result_.Samples.emplace_back(result_.FrameCount);
    }
  }

  PointSurvey Take() {
    BinaryFile& file = state_.C3dFileNumber;
    file.ForgetBuffer();
    const BinaryFile::ReadAhead ahead(file, kReadAhead);
    if (result_.FrameCount > 0) file.Seek(state_.SeekPtrForFirstFrameData);
    for (std::int32_t frame = 1; frame <= result_.FrameCount; ++frame) {
      const auto bytes = file.Read(static_cast<std::size_t>(layout_.FrameSize));
      for (PointGaps& point : result_.Points) {
        if (!IsSeen(WordsOf(bytes, point.Index))) AddUnseen(point, frame);
      }
      Keep(bytes, frame);
    }
    for (PointGaps& point : result_.Points) EndGap(point);
    return std::move(result_);
  }

 private:
  std::span<const std::byte> WordsOf(std::span<const std::byte> frame, std::int32_t index) const {
    const auto size = static_cast<std::size_t>(layout_.PointSize);
    return frame.subspan(static_cast<std::size_t>(index - 1) * size, size);
  }

  // As PointSample::IsSeen, without making the sample.
  bool IsSeen(std::span<const std::byte> words) const {
    if (layout_.ValueSize == kIntegerSize) {
      return StoredInteger(words.subspan<3 * kIntegerSize, kIntegerSize>()) >= 0;
    }
    const auto value = [&](std::size_t i) {
      const auto bits = StoredSingleBits(words.subspan(i * kSingleSize).first<kSingleSize>());
      return SingleFromBits(bits, state_.ProcessorType);
    };
    return value(3) >= 0 && !std::isnan(value(0)) && !std::isnan(value(1)) && !std::isnan(value(2));
  }

  void AddUnseen(PointGaps& point, std::int32_t frame) {
    ++point.UnseenCount;
    FrameRange& open = OpenGap(point);
    if (open.Last == frame - 1 && open.Count() > 0) {
      open.Last = frame;
    } else {
      EndGap(point);
      open = {frame, frame};
    }
  }

  // The gap that the last frame may belong to.
  FrameRange& OpenGap(PointGaps& point) {
    return open_[static_cast<std::size_t>(&point - result_.Points.data())];
  }

  void EndGap(PointGaps& point) {
    FrameRange& open = OpenGap(point);
    if (open.Count() < 1) return;
    if (open.Count() > point.Longest.Count()) point.Longest = open;
    if (gaps_ < kMostGaps) point.Gaps.push_back(open);
    ++gaps_;
    open = {};
  }

  void Keep(std::span<const std::byte> bytes, std::int32_t frame) {
    for (std::size_t i = 0; i < kept_.size(); ++i) {
      PointSamples& samples = result_.Samples[i];
      if (samples.IsEmpty()) continue;
      const bool fits = modAllPurpose::IgnoringErrors([&] {
        DecodePoint(state_, layout_, WordsOf(bytes, kept_[i]), samples[frame]);
        samples[frame].Time = TimeOfFrame(state_, secondsPerFrame_, frame - 1);
      });
      if (!fits) samples = {};
    }
  }

  const FileState& state_;
  FrameLayout layout_;
  double secondsPerFrame_ = SecondsPerFrame(state_);
  std::span<const std::int32_t> kept_;
  std::vector<FrameRange> open_;
  std::size_t gaps_ = 0;
  PointSurvey result_;
};

}  // namespace

std::int32_t WholeFrameCount(const FileState& state) {
  const FrameLayout layout = LayoutOf(state);
  const std::int32_t points = state.Header.PointLabelCount * layout.PointSize;
  if (layout.FrameSize < 1 || layout.FrameSize < points) return 0;
  if (state.SeekPtrForFirstFrameData < 1) return 0;
  const std::uint64_t start = static_cast<std::uint64_t>(state.SeekPtrForFirstFrameData) - 1;
  const std::uint64_t size = state.C3dFileNumber.Size();
  if (size <= start) return 0;
  const std::uint64_t frames = (size - start) / static_cast<std::uint64_t>(layout.FrameSize);
  const auto claimed = static_cast<std::uint64_t>(std::max(state.PointFrameCount, 0));
  return static_cast<std::int32_t>(std::min(frames, claimed));
}

PointSurvey SurveyPoints(const FileState& state, std::span<const std::int32_t> points,
                         std::span<const std::int32_t> kept) {
  return Survey(state, points, kept).Take();
}

}  // namespace modVantrel
