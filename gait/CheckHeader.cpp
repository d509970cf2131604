// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <vector>

#include <fmt/format.h>

#include "c3d/StoredNumbers.h"
#include "gait/CheckText.h"
#include "gait/Checks.h"

namespace modVantrel {

namespace {

constexpr std::int32_t kFirstFramePosition = 7;
constexpr std::int32_t kSamplesPosition = 19;

// A number that a parameter gives, and the place of that parameter.
struct Given {
  std::string Place;
  double Number;
};

std::string PlaceAndNumber(const Given& given, std::string_view unit) {
  return fmt::format("{} gives {}{}", given.Place, NumberText(given.Number), unit);
}

// A number of two 16-bit words, the low one first; nothing where there are not both.
std::optional<double> LongNumber(const ParamRecord& param) {
  const auto& words = param.IntegerValues;
  if (!words.Holds(ElementAt(1)) || !words.Holds(ElementAt(2))) return std::nullopt;
  constexpr double kHighWord = 65536;
  return UnsignedWord(words.At(ElementAt(1))) + kHighWord * UnsignedWord(words.At(ElementAt(2)));
}

std::vector<Given> FrameCountsGiven(const CheckedTrial& trial) {
  std::vector<Given> counts;
  const auto start = LongNumber(trial.Param("TRIAL", "ACTUAL_START_FIELD"));
  const auto end = LongNumber(trial.Param("TRIAL", "ACTUAL_END_FIELD"));
  if (start && end) counts.push_back({"TRIAL:ACTUAL_END_FIELD", *end - *start + 1});
  for (const char* name : {"LONG_FRAMES", "FRAMES"}) {
    if (const auto number = NumberOf(trial.Param("POINT", name))) {
      counts.push_back({std::string("POINT:") + name, *number});
    }
  }
  return counts;
}

// As the header has it, whether the program takes it or not.
std::int32_t HeaderFrameCount(const CheckedTrial& trial) {
  if (trial.State.PointFrameCount > 0) return trial.State.PointFrameCount;
  return UnsignedWord(trial.Header.LastPointFrameNumber) -
         UnsignedWord(trial.Header.FirstPointFrameNumber) + 1;
}

// The sentences of those that differ, and the place of the first.
template <typename Differs>
std::optional<Given> FirstOf(const std::vector<Given>& given, std::vector<std::string>& sentences,
                             std::string_view unit, Differs differs) {
  std::optional<Given> first;
  for (const Given& number : given) {
    if (!differs(number.Number)) continue;
    if (!first) first = number;
    sentences.push_back(PlaceAndNumber(number, unit));
  }
  return first;
}

bool IsRateOf(double analogRate, double frameRate, double samples) {
  constexpr double kTolerance = 1e-4;  // rates are written with seven digits at most
  return std::fabs(analogRate - frameRate * samples) <= kTolerance * std::fabs(analogRate);
}

void CheckAnalogRate(const CheckedTrial& trial, Findings& findings) {
  const auto rate = NumberOf(trial.Param("ANALOG", "RATE"));
  const double samples = trial.Header.AnalogSamplesPerChannel;
  if (!rate || IsRateOf(*rate, trial.Header.PointFrameRate, samples) ||
      IsRateOf(*rate, trial.State.Header.PointFrameRate, samples)) {
    return;
  }
  findings.Add(
      "analog-layout", "ANALOG:RATE",
      fmt::format("ANALOG:RATE is {} Hz, but the header's {} a frame at {} frames per "
                  "second make {} Hz: the program takes the header's.",
                  NumberText(*rate), Counted(trial.Header.AnalogSamplesPerChannel, "sample"),
                  NumberText(trial.Header.PointFrameRate),
                  NumberText(samples * trial.Header.PointFrameRate)));
}

}  // namespace

void CheckFrameCount(const CheckedTrial& trial, Findings& findings) {
  const std::int32_t frames = HeaderFrameCount(trial);
  std::vector<std::string> others;
  const auto first = FirstOf(FrameCountsGiven(trial), others, "",
                             [frames](double number) { return number != frames; });
  if (!first) return;
  findings.Add("frame-count", first->Place,
               fmt::format("The header counts {}, but {}: the program takes the header's, so the "
                           "trial may be longer or shorter than what is read.",
                           Counted(frames, "frame"), Listed(others)));
}

void CheckFirstFrame(const CheckedTrial& trial, Findings& findings) {
  const std::int32_t first = trial.Header.FirstPointFrameNumber;
  if (first == 1) return;
  const std::string start =
      trial.HasTimes() ? fmt::format(" at {}", SecondsText(trial.State.WalkStartTime)) : "";
  findings.Add("first-frame", fmt::format("byte {}", kFirstFramePosition),
               fmt::format("The trial begins with frame {}{} and not with frame 1 at 0 s: times "
                           "count from where the recording was begun.",
                           first, start));
}

void CheckRate(const CheckedTrial& trial, Findings& findings) {
  if (trial.Outcome.Result == OpenResult::FrameRateNotSet) return;  // which names both rates
  const float rate = trial.Header.PointFrameRate;
  std::vector<Given> given;
  const auto camera = trial.Param("TRIAL", "CAMERA_RATE").SingleValues.First();
  if (camera) given.push_back({"TRIAL:CAMERA_RATE", *camera});
  if (const auto point = NumberOf(trial.Param("POINT", "RATE"))) {
    given.push_back({"POINT:RATE", *point});
  }
  std::vector<std::string> others;
  const auto first =
      FirstOf(given, others, " Hz", [rate](double number) { return number != double{rate}; });
  if (!first) return;
  findings.Add(
      "rate-overridden", first->Place,
      fmt::format("The header gives {} frames per second, but {}: all times and speeds "
                  "go by {} Hz.",
                  NumberText(rate), Listed(others), NumberText(trial.State.Header.PointFrameRate)));
}

void CheckPointCount(const CheckedTrial& trial, Findings& findings) {
  const auto used = NumberOf(trial.Param("POINT", "USED"));
  if (!used || *used == trial.Header.PointLabelCount) return;
  findings.Add("point-count", "POINT:USED",
               fmt::format("The header counts {}, but POINT:USED is {}: the program takes the "
                           "header's; if that is the wrong one, all positions are read from the "
                           "wrong places.",
                           Counted(trial.Header.PointLabelCount, "point"), NumberText(*used)));
}

void CheckAnalogLayout(const CheckedTrial& trial, Findings& findings) {
  const C3dHeader& header = trial.Header;
  const int values = header.AnalogValuesPerFrame;
  const int samples = header.AnalogSamplesPerChannel;
  const auto used = NumberOf(trial.Param("ANALOG", "USED"));
  const bool isWhole = values == 0 || (samples > 0 && values > 0 && values % samples == 0);
  if (!isWhole) {
    findings.Add("analog-layout", fmt::format("byte {}", kSamplesPosition),
                 fmt::format("The header's {} a frame at {} a channel make no whole number of "
                             "channels: analog values come out in the wrong places or not at all.",
                             Counted(values, "analog value"), Counted(samples, "sample")));
    return;
  }
  const int channels = values == 0 ? 0 : values / samples;
  if (used && *used != channels) {
    findings.Add("analog-layout", "ANALOG:USED",
                 fmt::format("ANALOG:USED is {}, but the header's {} a frame at {} a channel make "
                             "{}: the program takes the header's.",
                             NumberText(*used), Counted(values, "analog value"),
                             Counted(samples, "sample"), Counted(channels, "channel")));
  }
  if (channels > 0) CheckAnalogRate(trial, findings);
}

}  // namespace modVantrel
