// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/WalkOfStrides.h"

#include <array>
#include <string>

#include "gait/GcdCurveTable.h"
#include "sample/TrialBuilder.h"

namespace bench {

namespace {

sample::PointCurve Curve(float phase) {
  return [phase](std::int32_t frame) {
    const float x = phase + static_cast<float>(frame % 110);
    return std::array{x, 0.01F * x * x, -x};
  };
}

}  // namespace

sample::Trial WalkOfStrides(int strides) {
  sample::TrialBuilder builder;
  builder.StoredAs(sample::Storage::Single).Frames(1, 12000);
  float phase = 0;
  for (const std::string side : {"L", "R"}) {
    builder.AddPoint(side + "TOE", Curve(++phase));
    for (const auto& row : modVantrel::GcdCurveTable()) {
      builder.AddPoint(side + std::string(row.Label), Curve(++phase));
    }
  }
  // Every strike but the last two starts a stride.
  float time = 1;
  for (int strike = 0; strike < strides + 2; ++strike, time += 0.55F) {
    const bool left = strike % 2 == 0;
    builder.AddEvent(left ? "Left" : "Right", "Foot Strike", time);
    builder.AddEvent(left ? "Right" : "Left", "Foot Off", time + 0.11F);
  }
  return builder.Build();
}

}  // namespace bench
