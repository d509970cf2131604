// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "c3d/OpenC3dFile.h"
#include "c3d/ParameterSection.h"
#include "fuzz/MemoryTrial.h"
#include "gait/EventExtraction.h"
#include "sample/TrialBuilder.h"

namespace {

using modVantrel::FileState;

// Takes choices off the input; zeros behind its end.
class Choices {
 public:
  Choices(const std::uint8_t* data, std::size_t size) : data_(data), left_(size) {}

  std::uint8_t Byte() {
    if (left_ == 0) return 0;
    --left_;
    return *data_++;
  }
  std::int32_t UpTo(std::int32_t most) { return Byte() % (most + 1); }
  float Value() { return static_cast<float>(static_cast<std::int8_t>(Byte())) * 2.5F; }

 private:
  const std::uint8_t* data_;
  std::size_t left_;
};

void Require(bool holds, const std::string& what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

struct Expected {
  std::int32_t Frames = 0;
  bool AsIntegers = false;
  std::vector<std::vector<float>> PointX;  // by point, by frame
  std::vector<std::int16_t> Extra;         // a parameter of the trial's own
};

sample::TrialBuilder Choose(Choices& choices, Expected& expected) {
  sample::TrialBuilder builder;
  expected.AsIntegers = choices.UpTo(1) == 0;
  builder.StoredAs(expected.AsIntegers ? sample::Storage::Integer : sample::Storage::Single);
  builder.Processor(choices.UpTo(1) == 0 ? modVantrel::kProcessorIntel : modVantrel::kProcessorDec);
  builder.Order(static_cast<sample::RecordOrder>(choices.UpTo(2)));
  builder.End(static_cast<sample::SectionEnd>(choices.UpTo(1)));
  builder.ParamBlock(static_cast<std::uint8_t>(2 + choices.UpTo(3)));
  builder.Scale(0.5F);
  expected.Frames = 1 + choices.UpTo(9);
  builder.Frames(7, static_cast<std::int16_t>(6 + expected.Frames));

  const std::int32_t points = 1 + choices.UpTo(4);
  for (std::int32_t point = 0; point < points; ++point) {
    std::vector<float> values(static_cast<std::size_t>(expected.Frames));
    std::ranges::generate(values, [&choices] { return choices.Value(); });
    expected.PointX.push_back(values);
    builder.AddPoint(fmt::format("P{}", point), [values](std::int32_t frame) {
      return std::array{values[static_cast<std::size_t>(frame) - 1], 1.0F, -1.0F};
    });
  }
  const std::int32_t extra = 1 + choices.UpTo(20);
  for (std::int32_t i = 0; i < extra; ++i) {
    expected.Extra.push_back(static_cast<std::int16_t>(choices.Byte() * 257));
  }
  builder.SetParam("EXTRA", sample::IntegerListParam("VALUES", expected.Extra));
  return builder;
}

void Check(const FileState& state, const Expected& expected) {
  Require(state.PointFrameCount == expected.Frames, "frame count");
  for (std::size_t point = 0; point < expected.PointX.size(); ++point) {
    const auto samples = modVantrel::GetPointDataForLabel(state, fmt::format("p{}", point));
    Require(samples.Count() == expected.Frames, "a sample for each frame");
    for (std::int32_t frame = 1; frame <= samples.Count(); ++frame) {
      const float wanted = expected.PointX[point][static_cast<std::size_t>(frame) - 1];
      Require(samples[frame].X == wanted, "the value that was written");
      Require(samples[frame].Z == -1.0F, "the third coordinate");
    }
  }
  const auto extra = modVantrel::FindGroupAndParam(state, "extra", "values").Param;
  for (std::size_t i = 0; i < expected.Extra.size(); ++i) {
    const auto index = static_cast<std::int32_t>(i) + 1;
    Require(extra.IntegerValues.At(modVantrel::ElementAt(index)) == expected.Extra[i],
            "a parameter");
  }
}

}  // namespace

// What the trial builder writes, the reader reads back.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static fuzz::MemoryTrial file;
  Choices choices(data, size);
  Expected expected;
  const sample::Trial trial = Choose(choices, expected).Build();
  std::vector<std::uint8_t> bytes;
  for (const std::byte byte : trial.Bytes()) bytes.push_back(std::to_integer<std::uint8_t>(byte));

  FileState state;
  const auto result = modVantrel::OpenC3dFile(state, file.Fill(bytes), modVantrel::FindGaitEvents);
  Require(result == modVantrel::OpenResult::Success, "the trial opens");
  Check(state, expected);
  return 0;
}
