// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "c3d/FileState.h"
#include "c3d/OpenC3dFile.h"
#include "sample/TrialBuilder.h"
#include "support/OneBasedTable.h"
#include "support/ReportOutput.h"
#include "support/RuntimeError.h"
#include "tests/ErrorNumbers.h"

namespace tests {

// For TrialBuilder: a point that stays at the origin, and a channel without a signal.
std::array<float, 3> Origin(std::int32_t frame);
float Silence(std::int32_t sample);

// The entries of a table, from 1 on.
template <typename Entry>
std::vector<Entry> Entries(const modAllPurpose::OneBasedTable<Entry>& table) {
  return {table.begin(), table.end()};
}

// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& Path() const { return path_; }
  // The path of `name` (UTF-8) in it.
  std::filesystem::path operator/(const std::string& name) const;

 private:
  std::filesystem::path path_;
};

// A trial written to a file and opened, without looking for events.
class OpenedTrial {
 public:
  explicit OpenedTrial(const sample::Trial& trial);
  explicit OpenedTrial(const sample::TrialBuilder& builder) : OpenedTrial(builder.Build()) {}

  modVantrel::OpenResult Result() const { return result_; }
  modVantrel::FileState& State() { return state_; }
  const std::filesystem::path& File() const { return file_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path file_;
  modVantrel::FileState state_;
  modVantrel::OpenResult result_;
};

// Opens trials one after the other in one state object, as a user does. A run-time error of an open
// passes through; the state then is what the open left.
class TrialOpener {
 public:
  modVantrel::OpenResult Open(const sample::Trial& trial);
  modVantrel::OpenResult Open(const sample::TrialBuilder& builder) { return Open(builder.Build()); }

  modVantrel::FileState& State() { return state_; }
  // The file that every trial is written to.
  std::string File() const { return file_.string(); }

 private:
  TemporaryFolder folder_;
  std::filesystem::path file_ = folder_ / "trial.c3d";
  modVantrel::FileState state_;
};

// Where the fields of the header stand in a file, counted from 1.
namespace header {
inline constexpr std::int32_t kParamBlockPointer = 1;
inline constexpr std::int32_t kFileID = 2;
inline constexpr std::int32_t kPointLabelCount = 3;
inline constexpr std::int32_t kAnalogValuesPerFrame = 5;
inline constexpr std::int32_t kMaxInterpolationGapAllowed = 11;
inline constexpr std::int32_t kScaleFactor = 13;
inline constexpr std::int32_t kFirstMarkerAndAnalogBlockPointer = 17;
inline constexpr std::int32_t kAnalogSamplesPerChannel = 19;
inline constexpr std::int32_t kPointFrameRate = 21;
inline constexpr std::int32_t kReserved1 = 25;
inline constexpr std::int32_t kEventDataFlag = 299;
inline constexpr std::int32_t kTimedEventsCount = 301;
inline constexpr std::int32_t kReserved2 = 303;
inline constexpr std::int32_t kEventTimes = 305;
inline constexpr std::int32_t kEventDisplaySwitches = 377;
inline constexpr std::int32_t kReserved3 = 395;
inline constexpr std::int32_t kEventLabels = 397;
inline constexpr std::int32_t kReserved4 = 469;
}  // namespace header

// Where the parameter section of a trial starts, unless its builder was told otherwise, and its
// fourth byte and first record.
inline constexpr std::int32_t kSectionPosition = 513;
inline constexpr std::int32_t kProcessorPosition = 516;
inline constexpr std::int32_t kFirstRecordPosition = 517;

// The fourth byte of a file of a third processor, which is not read.
inline constexpr std::uint8_t kProcessorMips = 86;

// Deletes the file at `path`, if there is one, so that its name is free at once. Windows keeps the
// name of a deleted file taken as long as the file is open, so it gets another one first.
void TakeAway(const std::filesystem::path& path);

// Writes `trial` to a new file in place of the one at `path`. Some file systems wait for the disk
// when a file's content is replaced, which adds up in tests that write thousands.
void WriteAnew(const sample::Trial& trial, const std::filesystem::path& path);

// Stands for the search for events where a test does not need it.
void NoEvents(modVantrel::FileState& state);

// The number of the run-time error that `work` ends in; 0 where it ends without one.
int ErrorNumberOf(const std::function<void()>& work);

// What a report writes, lines ended by LF.
std::string TextOf(const std::function<void(modAllPurpose::ReportOutput&)>& report);

// The lines of `text` without their ends; fails the test where the last line has none.
std::vector<std::string> LinesOf(const std::string& text, const std::string& end = "\n");

std::string ReadWholeFile(const std::filesystem::path& path);

}  // namespace tests
