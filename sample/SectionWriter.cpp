// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/SectionWriter.h"

#include <utility>

#include "c3d/C3dFormat.h"
#include "sample/ByteWriter.h"

namespace sample {

namespace {

// One record: the bytes up to its offset word, and those behind it.
struct Record {
  std::string Key;
  std::vector<std::byte> Front;
  std::vector<std::byte> Back;
};

std::vector<std::byte> Front(const std::string& name, bool locked, int id) {
  ByteWriter bytes(modVantrel::kProcessorIntel);
  const auto length = static_cast<int>(name.size());
  bytes.SignedByte(locked ? -length : length);
  bytes.SignedByte(id);
  bytes.Text(name);
  return bytes.Take();
}

void WriteDescription(ByteWriter& bytes, const std::string& description) {
  bytes.Byte(static_cast<std::uint8_t>(description.size()));
  bytes.Text(description);
}

// Writes the values of a parameter and returns the type byte that belongs to them.
struct ValueWriter {
  ByteWriter& Bytes;
  std::size_t TextWidth;

  int operator()(std::monostate /*none*/) const { return modVantrel::kNoData; }
  int operator()(const std::vector<std::string>& texts) const {
    for (const std::string& text : texts) Bytes.PaddedText(text, TextWidth);
    return -1;
  }
  int operator()(const std::vector<std::uint8_t>& values) const {
    for (const std::uint8_t value : values) Bytes.Byte(value);
    return modVantrel::kByteData;
  }
  int operator()(const std::vector<std::int16_t>& values) const {
    for (const std::int16_t value : values) Bytes.Integer(value);
    return modVantrel::kIntegerData;
  }
  int operator()(const std::vector<float>& values) const {
    for (const float value : values) Bytes.Single(value);
    return modVantrel::kSingleData;
  }
};

Record GroupRecord(const GroupSpec& group) {
  ByteWriter back(modVantrel::kProcessorIntel);
  WriteDescription(back, group.Description);
  return {group.Name, Front(group.Name, group.Locked, -int{group.Number}), back.Take()};
}

Record ParamRecord(const GroupSpec& group, const ParamSpec& param, std::uint8_t processor) {
  const std::size_t textWidth = param.Dimensions.empty() ? 1 : param.Dimensions.front();
  ByteWriter values(processor);
  int type = std::visit(ValueWriter{values, textWidth}, param.Values);
  if (const auto* stored = std::get_if<std::uint8_t>(&param.DataType)) type = *stored;

  ByteWriter back(processor);
  back.SignedByte(type);
  back.Byte(static_cast<std::uint8_t>(param.Dimensions.size()));
  for (const std::uint8_t size : param.Dimensions) back.Byte(size);
  back.Append(values.Take());
  WriteDescription(back, param.Description);
  return {group.Name + ":" + param.Name, Front(param.Name, param.Locked, group.Number),
          back.Take()};
}

std::vector<Record> OrderedRecords(const SectionSpec& section, std::uint8_t processor,
                                   RecordOrder order) {
  std::vector<Record> groups;
  std::vector<Record> params;
  std::vector<Record> nested;
  for (const GroupSpec& group : section.Groups) {
    groups.push_back(GroupRecord(group));
    nested.push_back(groups.back());
    for (const ParamSpec& param : group.Params) {
      params.push_back(ParamRecord(group, param, processor));
      nested.push_back(params.back());
    }
  }
  if (order == RecordOrder::GroupThenItsParams) return nested;
  if (order == RecordOrder::ParamsBeforeGroups) std::swap(groups, params);
  groups.insert(groups.end(), params.begin(), params.end());
  return groups;
}

}  // namespace

WrittenSection WriteSection(const SectionSpec& section, std::uint8_t processor, RecordOrder order,
                            SectionEnd end) {
  const std::vector<Record> records = OrderedRecords(section, processor, order);
  ByteWriter bytes(processor);
  WrittenSection written;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const Record& record = records[i];
    written.Positions[record.Key] = static_cast<std::int32_t>(bytes.Size()) + 1;
    bytes.Append(record.Front);
    const bool last = i + 1 == records.size() && end == SectionEnd::ZeroOffset;
    const std::size_t offset = std::size_t{modVantrel::kOffsetWordSize} + record.Back.size();
    bytes.Integer(last ? std::int16_t{0} : static_cast<std::int16_t>(offset));
    bytes.Append(record.Back);
  }
  // The record of id 0 that the last offset leads to, where there is one.
  if (end == SectionEnd::ZeroId) bytes.PadTo(bytes.Size() + 2);
  written.Records = bytes.Take();
  return written;
}

}  // namespace sample
