// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/ParamIndex.h"

#include "c3d/ParameterSection.h"

namespace modVantrel {

ParamIndex::ParamIndex(const FileState& state) {
  try {
    WalkParamChain(state, [this](const ParamRecord& record, std::int32_t position) {
      if (record.IsGroup()) groups_.push_back(position);
      if (record.IsParam()) params_[record.Id].push_back(position);
      return false;
    });
  } catch (const modAllPurpose::RuntimeError& error) {
    failure_ = error;
  }
}

void ParamIndex::RethrowFailure() const {
  if (failure_) throw modAllPurpose::RuntimeError(*failure_);
}

}  // namespace modVantrel
