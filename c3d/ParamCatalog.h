// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "c3d/FileState.h"
#include "c3d/ParamRecord.h"
#include "support/RuntimeError.h"

namespace modVantrel {

// Where the walk along the parameter section went wrong: at which record, counted in bytes from 1,
// and in which error; none where the record lies behind the end of the section.
struct ChainFault {
  std::int32_t Position = 0;
  std::optional<modAllPurpose::RuntimeError> Error;
};

// The parameters of the open file by their names, found in one walk of the chain, for whoever looks
// up many. The walk ends at a fault; what comes before it is found.
class ParamCatalog {
 public:
  explicit ParamCatalog(const FileState& state);

  // The parameter with its values, as FindGroupAndParam finds it; Id 0 and no values where there is
  // none. Names in upper case. Errors as ReadParamRecord.
  ParamRecord Param(std::string_view group, std::string_view param) const;
  bool HasGroup(std::string_view group) const { return groups_.contains(group); }

  const std::optional<ChainFault>& Fault() const { return fault_; }

 private:
  void Enter(const ParamRecord& record, std::int32_t position);

  const FileState& state_;
  std::map<std::string, std::uint8_t, std::less<>> groups_;
  std::map<std::pair<std::uint8_t, std::string>, std::int32_t> params_;  // positions
  std::optional<ChainFault> fault_;
};

}  // namespace modVantrel
