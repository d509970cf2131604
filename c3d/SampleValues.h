// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "support/RuntimeError.h"

namespace modVantrel {

// The samples of many frames, one behind the other.
using SampleBlock = std::shared_ptr<const std::vector<float>>;

// The samples of one channel in one frame, numbered from 1 in time order. An index outside
// 1..Count() is error 9. The frames of a channel share one block of memory, which lasts as long as
// any of them; so copies refer to the same samples.
class SampleValues {
 public:
  SampleValues() = default;

  // The `count` samples from `first` on, from 0, of a block that must hold them.
  SampleValues(const SampleBlock& block, std::size_t first, std::int32_t count)
      : samples_(block, block->data() + first), count_(count) {}

  std::int32_t Count() const { return count_; }

  float operator[](std::int32_t index) const {
    if (index < 1 || index > count_) {
      throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::SubscriptOutOfRange);
    }
    return samples_.get()[index - 1];
  }

  const float* begin() const { return samples_.get(); }
  const float* end() const { return samples_.get() + count_; }

 private:
  std::shared_ptr<const float> samples_;  // the first one; keeps the whole block
  std::int32_t count_ = 0;
};

}  // namespace modVantrel
