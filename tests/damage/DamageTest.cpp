// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <filesystem>
#include <random>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/FrameData.h"
#include "c3d/OpenC3dFile.h"
#include "fuzz/ExerciseTrial.h"
#include "fuzz/MemoryTrial.h"
#include "gait/Checkup.h"
#include "gait/EventExtraction.h"
#include "sample/TrialBuilder.h"
#include "tests/TestTrials.h"
#include "tests/damage/AllocationMeter.h"

// Damage in bulk: whatever happens to the bytes of a file, opening it and running every report on
// it ends in an answer, soon, and without taking much memory.
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kMostMemory = std::size_t{64} * 1024 * 1024;

// For one input: the open and all reports. Processor time, since the machine may be busy.
constexpr double kMostSeconds = 0.05;

double ProcessorSeconds() {
  timespec now{};
  ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

Bytes BytesOf(const sample::Trial& trial) {
  Bytes bytes;
  for (const std::byte byte : trial.Bytes()) bytes.push_back(std::to_integer<std::uint8_t>(byte));
  return bytes;
}

// A short walk with strides, channels and prefixes, so that a change meets every kind of step.
sample::Trial Walk(std::uint8_t processor, sample::Storage storage) {
  sample::TrialBuilder walk;
  walk.Processor(processor).StoredAs(storage).Frames(1, 30).Rate(10.0F).SamplesPerFrame(2);
  for (const std::string label : {"LTOE", "RTOE"}) {
    walk.AddPoint(label, [](std::int32_t frame) {
      return std::array{static_cast<float>(frame) * 3.0F, 20.0F, 1.0F};
    });
  }
  walk.AddAnalog("Fz1", "Force", [](std::int32_t k) { return static_cast<float>(k); });
  walk.AddEvent("Left", "Foot Strike", 0.2F).AddEvent("Right", "Foot Off", 0.5F);
  walk.AddEvent("Right", "Foot Strike", 1.0F).AddEvent("Left", "Foot Off", 1.4F);
  walk.AddEvent("Left", "Foot Strike", 1.9F);
  walk.SetParam("SUBJECTS", sample::IntegerParam("USES_PREFIXES", 1));
  walk.SetParam("SUBJECTS", sample::TextListParam("LABEL_PREFIXES", {"S1:"}));
  return walk.Build();
}

using Answer = void (*)(const std::string&);

double SecondsFor(Answer answer, const std::string& path) {
  const double start = ProcessorSeconds();
  answer(path);
  return ProcessorSeconds() - start;
}

// What a busy machine adds to the time of an answer differs from try to try: the least counts.
double LeastSecondsFor(Answer answer, const std::string& path) {
  constexpr int kTries = 10;
  double least = SecondsFor(answer, path);
  for (int i = 1; i < kTries; ++i) least = std::min(least, SecondsFor(answer, path));
  return least;
}

// Holds one answer to a damaged file against the memory and the time that it may take.
void Measure(Answer answer, const std::string& path, const std::string& damage) {
  tests::AllocationMeter::Reset();
  const double seconds = SecondsFor(answer, path);
  EXPECT_LT(tests::AllocationMeter::Peak(), kMostMemory) << damage;
  if (seconds < kMostSeconds) return;
  EXPECT_LT(LeastSecondsFor(answer, path), kMostSeconds) << damage;
}

class DamageInBulk : public testing::Test {
 protected:
  // Answers once more for these bytes; `damage` names what was done to them.
  void Exercise(const Bytes& bytes, const std::string& damage) {
    const std::string& path = file_.Fill(bytes);
    ++inputs_;
    Measure(fuzz::ExerciseTrial, path, damage);
    Measure(fuzz::ExerciseCheckup, path, "the checkup of " + damage);
  }

  void ExerciseSingleChanges(const Bytes& good) {
    for (std::size_t at = 0; at < good.size(); ++at) {
      for (const int value : {0, 1, 127, 128, 255, good[at] ^ 1}) {
        if (value == good[at]) continue;
        Bytes changed = good;
        changed[at] = static_cast<std::uint8_t>(value);
        Exercise(changed, "byte " + std::to_string(at + 1) + " = " + std::to_string(value));
      }
    }
    EXPECT_GT(inputs_, good.size());
  }

  fuzz::MemoryTrial file_;
  std::size_t inputs_ = 0;
};

TEST_F(DamageInBulk, EachSingleByteOfAnIntelFile) {
  ExerciseSingleChanges(BytesOf(Walk(modVantrel::kProcessorIntel, sample::Storage::Integer)));
}

TEST_F(DamageInBulk, EachSingleByteOfADecFileOfFloats) {
  ExerciseSingleChanges(BytesOf(Walk(modVantrel::kProcessorDec, sample::Storage::Single)));
}

TEST_F(DamageInBulk, EachTruncation) {
  const Bytes good = BytesOf(Walk(modVantrel::kProcessorIntel, sample::Storage::Integer));
  for (std::size_t size = 0; size <= good.size(); ++size) {
    const Bytes cut(good.begin(), good.begin() + static_cast<std::ptrdiff_t>(size));
    Exercise(cut, "cut to " + std::to_string(size));
    const auto findings = modVantrel::CheckTrial(file_.Fill(cut));
    EXPECT_EQ(HasError(findings), size < good.size()) << size;
  }
  EXPECT_EQ(inputs_, good.size() + 1);
}

TEST_F(DamageInBulk, PairsOfChangesInTheParameterSection) {
  const sample::Trial trial = Walk(modVantrel::kProcessorIntel, sample::Storage::Integer);
  const Bytes good = BytesOf(trial);
  std::mt19937 random(20);
  std::uniform_int_distribution<std::size_t> place(
      std::size_t{modVantrel::kBlockSize}, static_cast<std::size_t>(trial.FrameDataPosition()) - 2);
  std::uniform_int_distribution<int> value(0, 255);
  constexpr int kPairs = 6000;
  for (int i = 0; i < kPairs; ++i) {
    Bytes changed = good;
    const std::size_t first = place(random);
    const std::size_t second = place(random);
    changed[first] = static_cast<std::uint8_t>(value(random));
    changed[second] = static_cast<std::uint8_t>(value(random));
    Exercise(changed, "bytes " + std::to_string(first + 1) + " and " + std::to_string(second + 1));
  }
}

TEST_F(DamageInBulk, LargestCountsThatAHeaderCanClaim) {
  sample::Trial trial = Walk(modVantrel::kProcessorIntel, sample::Storage::Integer);
  trial.ClaimFrames(1, 32767).SetInteger(3, 32767).SetInteger(5, 32767).SetInteger(19, 32767);
  Exercise(BytesOf(trial), "32767 of everything");
  trial.SetInteger(19, 1);
  Exercise(BytesOf(trial), "32767 channels of one sample");
  trial.SetInteger(5, -32768);
  Exercise(BytesOf(trial), "a negative number of analog values");
}

TEST(ShrinkingFile, EndsTheNextReadInAnErrorAndNothingElse) {
  const sample::Trial trial = Walk(modVantrel::kProcessorIntel, sample::Storage::Integer);
  const tests::TemporaryFolder folder;
  const auto path = folder / "trial.c3d";
  for (std::size_t size = 0; size < trial.Size(); size += 97) {
    trial.WriteTo(path);
    modVantrel::FileState state;
    ASSERT_EQ(modVantrel::OpenC3dFile(state, path.string(), modVantrel::FindGaitEvents),
              modVantrel::OpenResult::Success);
    std::filesystem::resize_file(path, size);
    fuzz::ExerciseOpenFile(state);
    const int error =
        tests::ErrorNumberOf([&] { modVantrel::GetPointDataForLabel(state, "LTOE"); });
    EXPECT_EQ(error, 62) << "cut to " << size;
  }
}

TEST(VanishingFile, IsReadOnFromItsHandle) {
  const tests::TemporaryFolder folder;
  const auto path = folder / "trial.c3d";
  Walk(modVantrel::kProcessorIntel, sample::Storage::Integer).WriteTo(path);
  modVantrel::FileState state;
  ASSERT_EQ(modVantrel::OpenC3dFile(state, path.string(), modVantrel::FindGaitEvents),
            modVantrel::OpenResult::Success);
  std::filesystem::remove(path);
  EXPECT_EQ(modVantrel::GetPointDataForLabel(state, "LTOE").Count(), 30);
}

}  // namespace
