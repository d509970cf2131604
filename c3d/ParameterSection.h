// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>

#include "c3d/FileState.h"
#include "c3d/ParamRecord.h"

// The parameter section: a chain of group and parameter records, each with the offset to the next.
// It is read from the open file at every call and never kept.
namespace modVantrel {

// Whether a record's value array is wanted. A skipped array stays empty; that its bytes are in the
// file is checked all the same.
enum class Values { Read, Skip };

// The record at `position`. NextPosition is that of the record behind it; for the last record
// `isLast` becomes true and, with `stopAtEnd`, NextPosition 0. An id of 0 gives an empty record and
// leaves `isLast` alone. Every following record lies further on in the file, so a walk always ends.
// Errors: 9 for more than seven dimensions, 62 and 63 as BinaryFile.
ParamRecord ReadParamRecord(const FileState& state, std::int32_t position, bool stopAtEnd,
                            bool& isLast, Values values = Values::Read);

// Calls `visit(record, position)` for each record of the chain, in file order and without its
// values, until `visit` answers true or the chain ends. The walk begins with what the file holds
// now. Errors as ReadParamRecord.
template <typename Visit>
void WalkParamChain(const FileState& state, Visit&& visit) {
  const BinaryFile::Look look(state.C3dFileNumber);
  bool isLast = false;
  std::int32_t position = state.SeekPtrForFirstC3dParam;
  while (position != 0) {
    const ParamRecord record = ReadParamRecord(state, position, true, isLast, Values::Skip);
    if (visit(record, position)) return;
    position = record.NextPosition;
  }
}

// The record at `position` with its values.
ParamRecord ReadParamRecordAt(const FileState& state, std::int32_t position);

// The first group of that name, ignoring case and the blanks around it; Id 0 where there is none.
// Errors as ReadParamRecord.
ParamRecord FindGroup(const FileState& state, std::string_view groupName);

// The first group of that name and its first parameter of that name, ignoring case and the blanks
// around both names. What is not found has Id 0 and no values. Errors as ReadParamRecord.
GroupAndParam FindGroupAndParam(const FileState& state, std::string_view groupName,
                                std::string_view paramName);

// The four bytes in front of the first record, read afresh from the file. The file then stands
// just behind them.
ParamBlockHeader ReadParamBlockHeader(const FileState& state);

}  // namespace modVantrel
