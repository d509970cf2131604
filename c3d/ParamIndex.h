// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "c3d/FileState.h"
#include "support/RuntimeError.h"

namespace modVantrel {

// Where the groups and the parameters of each group stand, found in one walk of the chain. A report
// of many groups takes them from here instead of walking the chain again for each.
//
// A chain that ends in an error is indexed up to there: what comes before can be printed, and
// RethrowFailure then ends the report where a walk would have ended it.
class ParamIndex {
 public:
  explicit ParamIndex(const FileState& state);

  // Positions in file order.
  const std::vector<std::int32_t>& Groups() const { return groups_; }
  const std::vector<std::int32_t>& ParamsOf(std::uint8_t groupId) const { return params_[groupId]; }

  // Throws the error that ended the walk; nothing where it came to its end.
  void RethrowFailure() const;

 private:
  static constexpr std::size_t kGroupIds = 256;

  std::vector<std::int32_t> groups_;
  std::array<std::vector<std::int32_t>, kGroupIds> params_;
  std::optional<modAllPurpose::RuntimeError> failure_;
};

}  // namespace modVantrel
