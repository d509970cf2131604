// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <vector>

#include <fmt/format.h>

#include "c3d/StoredNumbers.h"
#include "gait/CheckText.h"
#include "gait/Checks.h"

namespace modVantrel {

namespace {

// Kistler plates have eight channels, all other common kinds six.
constexpr int kEightChannelType = 3;

// What a plate needs of an array of numbers: its last element.
ElementIndices LastElement(std::int32_t first, std::int32_t second, std::int32_t third) {
  ElementIndices indices = FirstElement();
  indices[0] = first;
  indices[1] = second;
  indices[2] = third;
  return indices;
}

class PlateCheck {
 public:
  PlateCheck(const CheckedTrial& trial, std::int32_t plates, Findings& findings)
      : trial_(trial), plates_(plates), findings_(findings) {}

  void Run() {
    const auto types = trial_.Param("FORCE_PLATFORM", "TYPE").IntegerValues;
    CheckWhole("CORNERS", [&](std::int32_t plate) {
      return Floats("CORNERS").Holds(LastElement(3, 4, plate));
    });
    CheckWhole("ORIGIN", [&](std::int32_t plate) {
      return Floats("ORIGIN").Holds(LastElement(3, plate, 1));
    });
    CheckWhole("TYPE", [&](std::int32_t plate) { return types.Holds(ElementAt(plate)); });
    const auto channels = trial_.Param("FORCE_PLATFORM", "CHANNEL").IntegerValues;
    CheckWhole("CHANNEL", [&](std::int32_t plate) {
      return channels.Holds(ElementAt(ChannelsOf(types, plate), plate));
    });
    CheckChannels(channels);
  }

 private:
  ValueArray<float> Floats(const char* name) const {
    return trial_.Param("FORCE_PLATFORM", name).SingleValues;
  }

  static std::int32_t ChannelsOf(const ValueArray<std::int16_t>& types, std::int32_t plate) {
    constexpr std::int32_t kSix = 6;
    constexpr std::int32_t kEight = 8;
    const bool hasType = types.Holds(ElementAt(plate));
    return hasType && types.At(ElementAt(plate)) == kEightChannelType ? kEight : kSix;
  }

  // `holds` says whether a parameter is there for a plate.
  template <typename Holds>
  void CheckWhole(const char* name, Holds holds) {
    std::int32_t whole = 0;
    while (whole < plates_ && holds(whole + 1)) ++whole;
    if (whole == plates_) return;
    findings_.Add(
        "force-plates", fmt::format("FORCE_PLATFORM:{}", name),
        fmt::format("FORCE_PLATFORM:{} is {} for {}: the forces of a plate without it "
                    "cannot be worked out or set beside the markers.",
                    name, whole == 0 ? "missing or short" : "short",
                    whole == 0 ? Counted(plates_, "force plate")
                               : fmt::format("{} of {} force plates", plates_ - whole, plates_)));
  }

  void CheckChannels(const ValueArray<std::int16_t>& channels) {
    std::vector<std::string> beyond;
    for (std::int32_t plate = 1; plate <= plates_; ++plate) {
      for (std::int32_t i = 1; channels.Holds(ElementAt(i, plate)); ++i) {
        const std::int32_t channel = UnsignedWord(channels.At(ElementAt(i, plate)));
        if (channel > trial_.Channels.Wanted) beyond.push_back(fmt::format("{}", channel));
      }
    }
    if (beyond.empty()) return;
    findings_.Add("force-plates", "FORCE_PLATFORM:CHANNEL",
                  fmt::format("Force plates are said to use {} {}, but the file has {}: their "
                              "forces are not in it.",
                              beyond.size() == 1 ? "channel" : "channels", Listed(beyond),
                              Counted(trial_.Channels.Wanted, "channel")));
  }

  const CheckedTrial& trial_;
  std::int32_t plates_;
  Findings& findings_;
};

}  // namespace

void CheckForcePlates(const CheckedTrial& trial, Findings& findings) {
  const auto used = trial.Param("FORCE_PLATFORM", "USED").IntegerValues.First();
  if (used && *used > 0) PlateCheck(trial, *used, findings).Run();
}

}  // namespace modVantrel
