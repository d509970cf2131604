// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/ParameterSection.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "c3d/StoredNumbers.h"
#include "support/Arithmetic.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;
using modAllPurpose::SearchKey;
using modAllPurpose::UpperCase;
using modAllPurposeNumbers::ToLong;

namespace {

constexpr std::uint8_t kHighestPositiveByte = 127;
constexpr std::size_t kValueChunk = std::size_t{16} * 1024;  // bytes decoded at a time

std::string ReadTrimmedText(BinaryFile& file, std::size_t size) {
  std::string text = file.ReadText(size);
  modAllPurpose::TrimInPlace(text);
  return text;
}

void ReadDimensions(BinaryFile& file, ParamRecord& record) {
  record.Dimensions.fill(1);
  for (std::size_t i = 0; i < record.DimensionCount; ++i) {
    if (i == kMostDimensions) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    record.Dimensions[i] = file.ReadByte();
  }
}

std::size_t ElementSize(std::uint8_t dataType) {
  switch (dataType) {
    case kTextData:
    case kByteData:
      return 1;
    case kIntegerData:
      return kIntegerSize;
    case kSingleData:
      return kSingleSize;
    default:
      return 0;
  }
}

// Reads `count` numbers of Size bytes each, made by `decode`. The file holds them: the caller
// asked.
template <typename Number, std::size_t Size, typename Decode>
std::vector<Number> ReadNumbers(BinaryFile& file, std::uint64_t count, Decode decode) {
  std::vector<Number> numbers;
  numbers.reserve(static_cast<std::size_t>(count));
  while (numbers.size() < count) {
    const auto left = static_cast<std::size_t>(count) - numbers.size();
    const std::span<const std::byte> chunk = file.Read(std::min(left, kValueChunk / Size) * Size);
    for (std::size_t i = 0; i < chunk.size(); i += Size) {
      numbers.push_back(decode(chunk.subspan(i).first<Size>()));
    }
  }
  return numbers;
}

void ReadValues(BinaryFile& file, ParamRecord& record, std::uint8_t processorType,
                std::size_t stringLength) {
  const ArrayShape shape(record.Dimensions);
  switch (record.DataType) {
    case kTextData:
      record.TextValues = {shape, stringLength,
                           ReadNumbers<std::byte, 1>(file, shape.Count() * stringLength,
                                                     [](auto bytes) { return bytes[0]; })};
      break;
    case kByteData:
      record.ByteValues = {shape, ReadNumbers<std::uint8_t, 1>(file, shape.Count(), [](auto bytes) {
                             return std::to_integer<std::uint8_t>(bytes[0]);
                           })};
      break;
    case kIntegerData:
      record.IntegerValues = {
          shape, ReadNumbers<std::int16_t, kIntegerSize>(file, shape.Count(), StoredInteger)};
      break;
    case kSingleData:
      record.SingleValues = {
          shape, ReadNumbers<float, kSingleSize>(file, shape.Count(), [processorType](auto bytes) {
            return SingleFromBits(StoredSingleBits(bytes), processorType);
          })};
      break;
    default:
      break;
  }
}

// The parameter's own part of a record: type, dimensions and data.
void ReadParamPart(BinaryFile& file, ParamRecord& record, std::uint8_t processorType,
                   Values values) {
  record.DataType = file.ReadByte();
  record.DimensionCount = file.ReadByte();
  ReadDimensions(file, record);
  auto& sizes = record.Dimensions;
  if (std::ranges::find(sizes, 0) != sizes.end()) record.DataType = kNoData;

  const std::uint64_t dataSize = ArrayShape(sizes).Count() * ElementSize(record.DataType);
  std::size_t stringLength = 0;
  if (record.DataType == kTextData) {
    stringLength = sizes.front();
    std::rotate(sizes.begin(), std::next(sizes.begin()), sizes.end());
    sizes.back() = 1;
  }
  if (values == Values::Skip) {
    file.Skip(dataSize);
  } else {
    file.RequireLeft(dataSize);
    ReadValues(file, record, processorType, stringLength);
  }
}

// Whether the record whose NextPosition and OffsetToNext are known is the last of the chain.
bool EndsChain(BinaryFile& file, const ParamRecord& record) {
  if (record.OffsetToNext < kOffsetWordSize) return true;
  file.Seek(record.NextPosition);
  file.Skip(1);
  std::uint8_t nextId = file.ReadByte();
  SignedByteMagnitude(nextId);
  return nextId == 0;
}

}  // namespace

ParamRecord ReadParamRecord(const FileState& state, std::int32_t position, bool stopAtEnd,
                            bool& isLast, Values values) {
  BinaryFile& file = state.C3dFileNumber;
  file.Seek(position);
  ParamRecord record;
  record.NameLength = file.ReadByte();
  record.Locked = record.NameLength > kHighestPositiveByte;
  SignedByteMagnitude(record.NameLength);
  record.Id = file.ReadByte();
  // A raw 128 counts as a parameter; its magnitude is 0, so it ends the walk below.
  record.RecordType = record.Id > kHighestPositiveByte + 1 ? kGroupRecord : kParamRecord;
  SignedByteMagnitude(record.Id);
  if (record.Id == 0) return {};

  record.Name = ReadTrimmedText(file, record.NameLength);
  record.OffsetToNext = file.ReadInteger();
  record.NextPosition =
      ToLong(std::int64_t{file.Position()} + record.OffsetToNext - kOffsetWordSize);
  if (record.IsParam()) ReadParamPart(file, record, state.ProcessorType, values);
  record.DescriptionLength = file.ReadByte();
  SignedByteMagnitude(record.DescriptionLength);
  record.Description = ReadTrimmedText(file, record.DescriptionLength);

  isLast = EndsChain(file, record);
  if (isLast && stopAtEnd) record.NextPosition = 0;
  return record;
}

ParamRecord ReadParamRecordAt(const FileState& state, std::int32_t position) {
  bool isLast = false;
  return ReadParamRecord(state, position, true, isLast);
}

ParamRecord FindGroup(const FileState& state, std::string_view groupName) {
  const std::string wanted = SearchKey(groupName);
  ParamRecord group;
  WalkParamChain(state, [&](const ParamRecord& record, std::int32_t /*position*/) {
    const bool matches = record.IsGroup() && UpperCase(record.Name) == wanted;
    if (matches) group = record;
    return matches;
  });
  return group;
}

GroupAndParam FindGroupAndParam(const FileState& state, std::string_view groupName,
                                std::string_view paramName) {
  const BinaryFile::Look look(state.C3dFileNumber);
  GroupAndParam found;
  found.Group = FindGroup(state, groupName);
  if (!found.GroupFound()) return found;

  const std::string param = SearchKey(paramName);
  WalkParamChain(state, [&](const ParamRecord& record, std::int32_t position) {
    const bool matches =
        record.IsParam() && record.Id == found.Group.Id && UpperCase(record.Name) == param;
    if (matches) found.Param = ReadParamRecordAt(state, position);
    return matches;
  });
  return found;
}

ParamBlockHeader ReadParamBlockHeader(const FileState& state) {
  BinaryFile& file = state.C3dFileNumber;
  const BinaryFile::Look look(file);
  file.Seek((state.Header.ParamBlockPointer - 1) * kBlockSize + 1);
  ParamBlockHeader header;
  header.ParamBlockPointer = file.ReadByte();
  header.RecordID = file.ReadByte();
  header.ParamBlockCount = file.ReadByte();
  header.ProcessorType = file.ReadByte();
  return header;
}

}  // namespace modVantrel
