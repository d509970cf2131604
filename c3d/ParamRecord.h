// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "c3d/C3dFormat.h"

namespace modVantrel {

// The place of one element in a value array, every index from 1. Indices not given are 1.
using ElementIndices = std::array<std::int32_t, kMostDimensions>;
ElementIndices ElementAt(std::int32_t first, std::int32_t second = 1);
inline ElementIndices FirstElement() { return ElementAt(1); }

// The sizes of a value array and where each element stands in it: first index fastest, as in the
// file. The default shape holds nothing.
class ArrayShape {
 public:
  ArrayShape() = default;
  explicit ArrayShape(const std::array<std::uint8_t, kMostDimensions>& sizes) : sizes_(sizes) {}

  // Number of elements. Seven sizes of 255 fit.
  std::uint64_t Count() const;

  // Whether every index is within its dimension.
  bool Holds(const ElementIndices& indices) const;

  // The place of an element, from 0; error 9 where an index is outside its dimension.
  std::size_t Offset(const ElementIndices& indices) const;

 private:
  std::array<std::uint8_t, kMostDimensions> sizes_{};
};

// The numbers of a parameter. Taking an element from an array that was not filled is error 9.
template <typename Number>
class ValueArray {
 public:
  ValueArray() = default;
  ValueArray(const ArrayShape& shape, std::vector<Number> values)
      : shape_(shape), values_(std::move(values)) {}

  std::size_t Count() const { return values_.size(); }
  // The element at `offset`, from 0 in file order, which must be below Count().
  Number InFileOrder(std::size_t offset) const { return values_[offset]; }

  Number At(const ElementIndices& indices) const { return values_[shape_.Offset(indices)]; }

  bool Holds(const ElementIndices& indices) const {
    return !values_.empty() && shape_.Holds(indices);
  }

  // The first element; nothing where the array holds none, as in a parameter that was not found or
  // that is of another type.
  std::optional<Number> First() const {
    return values_.empty() ? std::nullopt : std::optional<Number>(values_.front());
  }

 private:
  ArrayShape shape_;
  std::vector<Number> values_;
};

// The texts of a parameter, kept as the file has them so that a large array takes no more memory
// than its bytes.
class TextArray {
 public:
  TextArray() = default;
  // `characters` are the Windows-1252 texts, `length` bytes each, in file order.
  TextArray(const ArrayShape& shape, std::size_t length, std::vector<std::byte> characters)
      : shape_(shape), length_(length), characters_(std::move(characters)) {}

  // The element as UTF-8, trimmed; error 9 where there is none.
  std::string At(const ElementIndices& indices) const;

  // The same for the first element; nothing where the array holds none.
  std::optional<std::string> First() const {
    return Count() == 0 ? std::nullopt : std::optional<std::string>(InFileOrder(0));
  }

  bool Holds(const ElementIndices& indices) const { return shape_.Holds(indices); }

  std::size_t Count() const { return length_ == 0 ? 0 : characters_.size() / length_; }
  // The element at `offset`, from 0 in file order, which must be below Count().
  std::string InFileOrder(std::size_t offset) const;
  // The same as the file has it.
  std::span<const std::byte> BytesInFileOrder(std::size_t offset) const {
    return std::span(characters_).subspan(offset * length_, length_);
  }

 private:
  ArrayShape shape_;
  std::size_t length_ = 0;
  std::vector<std::byte> characters_;
};

// One group or one parameter of the parameter section. Exactly one of the value arrays is filled,
// by DataType; all are empty for a group, and where the file was not asked for the values.
struct ParamRecord {
  std::uint8_t NameLength = 0;
  std::uint8_t Id = 0;  // the group's number, for a parameter that of its group; 0 = nothing
  std::string Name;     // trimmed
  std::int16_t OffsetToNext = 0;
  std::uint8_t DataType = kNoData;
  std::uint8_t DimensionCount = 0;
  // Unused dimensions are 1. For text the string length is taken out: 1 to 6 are the array's.
  std::array<std::uint8_t, kMostDimensions> Dimensions{};
  TextArray TextValues;
  ValueArray<std::uint8_t> ByteValues;
  ValueArray<std::int16_t> IntegerValues;
  ValueArray<float> SingleValues;
  std::uint8_t DescriptionLength = 0;
  std::string Description;        // trimmed
  std::uint8_t RecordType = 0;    // kGroupRecord or kParamRecord
  std::int32_t NextPosition = 0;  // of the next record; 0 = this was the last
  bool Locked = false;

  bool IsGroup() const { return RecordType == kGroupRecord; }
  bool IsParam() const { return RecordType == kParamRecord; }
};

// The result of a lookup by names.
struct GroupAndParam {
  ParamRecord Group;
  ParamRecord Param;

  bool GroupFound() const { return Group.Id > 0; }
  bool BothFound() const { return Group.Id > 0 && Param.Id > 0; }
};

}  // namespace modVantrel
