// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/ParamCatalog.h"

#include <algorithm>

#include "c3d/ParameterSection.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::UpperCase;

namespace {

// The first position behind both the blocks that the section counts and the first frame's start: no
// record can begin there.
std::int64_t EndOfSection(const FileState& state) {
  const std::int64_t start = (std::int64_t{state.Header.ParamBlockPointer} - 1) * kBlockSize + 1;
  const std::int64_t blocks = ReadParamBlockHeader(state).ParamBlockCount;
  return std::max<std::int64_t>(start + blocks * kBlockSize, state.SeekPtrForFirstFrameData);
}

}  // namespace

ParamCatalog::ParamCatalog(const FileState& state) : state_(state) {
  const BinaryFile::Look look(state.C3dFileNumber);
  std::int32_t position = state.SeekPtrForFirstC3dParam;
  try {
    const std::int64_t end = EndOfSection(state);
    bool isLast = false;
    while (position != 0 && position < end) {
      const ParamRecord record = ReadParamRecord(state, position, true, isLast, Values::Skip);
      Enter(record, position);
      position = record.NextPosition;
    }
    if (position != 0) fault_ = {position, {}};
  } catch (const modAllPurpose::RuntimeError& error) {
    fault_ = {position, error};
  }
}

void ParamCatalog::Enter(const ParamRecord& record, std::int32_t position) {
  if (record.IsGroup()) groups_.try_emplace(UpperCase(record.Name), record.Id);
  if (record.IsParam()) params_.try_emplace({record.Id, UpperCase(record.Name)}, position);
}

ParamRecord ParamCatalog::Param(std::string_view group, std::string_view param) const {
  const auto id = groups_.find(group);
  if (id == groups_.end()) return {};
  const auto position = params_.find({id->second, std::string(param)});
  return position == params_.end() ? ParamRecord() : ReadParamRecordAt(state_, position->second);
}

}  // namespace modVantrel
