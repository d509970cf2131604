// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/Archive.h"

#include <array>
#include <fstream>

#include <fmt/format.h>

#include "sample/SampleWalk.h"
#include "sample/TrialBuilder.h"
#include "support/FileSystem.h"
#include "tests/GaitTrials.h"
#include "tests/cli/LongTrial.h"

namespace tests {

namespace {

constexpr std::size_t kInAFolder = 50;

// What a file is by its number.
std::string KindOf(std::size_t number) {
  constexpr std::array kKinds = {"walk",  "short", "cut",   "walk",  "short", "text",
                                 "short", "long",  "short", "empty", "short", "short"};
  return kKinds.at(number % kKinds.size());
}

void WriteKinds(const std::filesystem::path& folder) {
  sample::SampleWalk().Build().WriteTo(folder / "walk");
  WholeFrameTrial().Build().WriteTo(folder / "short");
  LongTrial().Build().WriteTo(folder / "long");
  sample::Trial cut = WholeFrameTrial().Build();
  cut.TruncateTo(cut.Size() - 600).WriteTo(folder / "cut");
  std::ofstream(folder / "text") << "No trial.\n";
  std::ofstream(folder / "empty").flush();
}

}  // namespace

Archive::Archive(std::size_t files) {
  const TemporaryFolder kinds;
  WriteKinds(kinds.Path());
  for (std::size_t i = 0; i < files; ++i) {
    const auto folder = folder_ / fmt::format("visit{:03}", i / kInAFolder);
    std::filesystem::create_directories(folder);
    std::filesystem::create_hard_link(kinds / KindOf(i), folder / fmt::format("{:05}.c3d", i));
  }
  std::ofstream(folder_ / "photo.jpg") << "A picture.\n";
}

std::string Archive::Path() const { return modAllPurpose::Utf8Path(folder_.Path()); }

}  // namespace tests
