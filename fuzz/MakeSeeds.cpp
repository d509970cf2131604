// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdint>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

#include "sample/TrialBuilder.h"

namespace {

using sample::Storage;
using sample::TrialBuilder;

// A short walk with one stride of each foot.
TrialBuilder Walk() {
  TrialBuilder walk;
  walk.Frames(1, 40).Rate(10.0F);
  for (const std::string label : {"LTOE", "RTOE", "LKneeAngles"}) {
    walk.AddPoint(label, [](std::int32_t frame) {
      const auto step = static_cast<float>(frame);
      return std::array{step * 3.0F, 20.0F - step, 1.0F};
    });
  }
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Right", "Foot Off", 0.5F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Left", "Foot Off", 1.4F);
  walk.AddEvent("Left", "Foot Strike", 1.9F).AddEvent("Right", "Foot Off", 2.3F);
  walk.AddEvent("Right", "Foot Strike", 2.9F);
  return walk;
}

TrialBuilder WithChannels(TrialBuilder builder) {
  builder.SamplesPerFrame(2);
  builder.AddAnalog("Fz1", "Force down", [](std::int32_t k) { return static_cast<float>(k); });
  builder.AddAnalog("EMG", "Muscle", [](std::int32_t k) { return static_cast<float>(k % 7); });
  return builder;
}

TrialBuilder WithSubject(TrialBuilder builder) {
  builder.SetParam("SUBJECTS", sample::IntegerParam("USED", 1));
  builder.SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", 1));
  builder.SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", {"L"}));
  builder.SetParam("SUBJECTS", sample::TextParam("DOB", "2014-03-02"));
  builder.SetParam("TRIAL", sample::SingleParam("CAMERA_RATE", 20.0F));
  return builder;
}

}  // namespace

// Writes the seeds of the open target into the folder that is named as the only argument.
int main(int argc, char* argv[]) {
  if (argc != 2) {
    std::cerr << "usage: make-fuzz-seeds FOLDER\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  try {
    std::filesystem::create_directories(folder);
    TrialBuilder().Build().WriteTo(folder / "seed-small.c3d");
    TrialBuilder().Processor(modVantrel::kProcessorDec).Build().WriteTo(folder / "seed-dec.c3d");
    Walk().Build().WriteTo(folder / "seed-walk.c3d");
    Walk().StoredAs(Storage::Single).Build().WriteTo(folder / "seed-walk-single.c3d");
    WithChannels(Walk()).Build().WriteTo(folder / "seed-channels.c3d");
    WithSubject(WithChannels(TrialBuilder())).Build().WriteTo(folder / "seed-subject.c3d");
    TrialBuilder()
        .AddHeaderEvent("RHS", 0.5F, 1)
        .Order(sample::RecordOrder::ParamsBeforeGroups)
        .End(sample::SectionEnd::ZeroId)
        .Build()
        .WriteTo(folder / "seed-order.c3d");
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "make-fuzz-seeds: " << error.what() << '\n';
    return 1;
  }
}
