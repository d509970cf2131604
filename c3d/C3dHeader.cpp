// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/C3dHeader.h"

#include <algorithm>
#include <bit>

#include "c3d/StoredNumbers.h"
#include "support/Text.h"

namespace modVantrel {

namespace {

// Takes the fields of the header one after the other. Their sizes add up to the block exactly.
class FieldReader {
 public:
  explicit FieldReader(std::span<const std::byte, kBlockSize> bytes) : rest_(bytes) {}

  void Take(std::uint8_t& field) { field = std::to_integer<std::uint8_t>(Next<1>()[0]); }
  void Take(std::int16_t& field) { field = StoredInteger(Next<2>()); }
  void Take(float& field) { field = std::bit_cast<float>(StoredSingleBits(Next<4>())); }

  void Take(std::string& field) {
    field = modAllPurpose::FromWindows1252(Next<kHeaderEventLabelSize>());
  }

  template <std::size_t Size>
  void Take(std::array<std::byte, Size>& field) {
    std::ranges::copy(Next<Size>(), field.begin());
  }

  template <typename Entry>
  void Take(modAllPurpose::OneBasedTable<Entry>& table) {
    for (Entry& entry : table) Take(entry);
  }

 private:
  template <std::size_t Size>
  std::span<const std::byte, Size> Next() {
    const auto field = rest_.first<Size>();
    rest_ = rest_.subspan(Size);
    return field;
  }

  std::span<const std::byte> rest_;
};

}  // namespace

C3dHeader ParseHeader(std::span<const std::byte, kBlockSize> bytes) {
  C3dHeader header;
  FieldReader fields(bytes);
  fields.Take(header.ParamBlockPointer);
  fields.Take(header.FileID);
  fields.Take(header.PointLabelCount);
  fields.Take(header.AnalogValuesPerFrame);
  fields.Take(header.FirstPointFrameNumber);
  fields.Take(header.LastPointFrameNumber);
  fields.Take(header.MaxInterpolationGapAllowed);
  fields.Take(header.ScaleFactor);
  fields.Take(header.FirstMarkerAndAnalogBlockPointer);
  fields.Take(header.AnalogSamplesPerChannel);
  fields.Take(header.PointFrameRate);
  fields.Take(header.Reserved1);
  fields.Take(header.EventDataFlag);
  fields.Take(header.TimedEventsCount);
  fields.Take(header.Reserved2);
  fields.Take(header.EventTimes);
  fields.Take(header.EventDisplaySwitches);
  fields.Take(header.Reserved3);
  fields.Take(header.EventLabels);
  fields.Take(header.Reserved4);
  return header;
}

}  // namespace modVantrel
