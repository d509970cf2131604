// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/ParamRecord.h"

#include <algorithm>

#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

ElementIndices ElementAt(std::int32_t first, std::int32_t second) {
  return {first, second, 1, 1, 1, 1, 1};
}

std::uint64_t ArrayShape::Count() const {
  std::uint64_t count = 1;
  for (const std::uint8_t size : sizes_) count *= size;
  return count;
}

bool ArrayShape::Holds(const ElementIndices& indices) const {
  return std::ranges::equal(indices, sizes_, [](std::int32_t index, std::uint8_t size) {
    return index >= 1 && index <= size;
  });
}

std::size_t ArrayShape::Offset(const ElementIndices& indices) const {
  if (!Holds(indices)) throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
  std::size_t offset = 0;
  std::size_t step = 1;
  for (std::size_t i = 0; i < sizes_.size(); ++i) {
    offset += static_cast<std::size_t>(indices[i] - 1) * step;
    step *= sizes_[i];
  }
  return offset;
}

std::string TextArray::At(const ElementIndices& indices) const {
  return InFileOrder(shape_.Offset(indices));
}

std::string TextArray::InFileOrder(std::size_t offset) const {
  std::string text = modAllPurpose::FromWindows1252(BytesInFileOrder(offset));
  modAllPurpose::TrimInPlace(text);
  return text;
}

}  // namespace modVantrel
