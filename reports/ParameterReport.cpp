// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/ParameterReport.h"

#include <cstdint>
#include <iterator>
#include <string>

#include <fmt/format.h>

#include "c3d/ParamIndex.h"
#include "c3d/ParameterSection.h"
#include "support/NumberForms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::ElementIndices;
using modVantrel::FileState;
using modVantrel::ParamIndex;
using modVantrel::ParamRecord;

namespace {

constexpr std::size_t kTagWidth = 30;
constexpr std::size_t kTextIndices = 6;

// Moves `indices` to the next element, the last index fastest; false behind the last element.
bool NextElement(ElementIndices& indices, const ParamRecord& record) {
  for (std::size_t i = indices.size(); i-- > 0;) {
    if (indices[i] < record.Dimensions[i]) {
      ++indices[i];
      return true;
    }
    indices[i] = 1;
  }
  return false;
}

std::string ElementText(const ParamRecord& record, const ElementIndices& indices) {
  switch (record.DataType) {
    case modVantrel::kTextData:
      return fmt::format("    {}'{}'", ElementTag("txt", std::span(indices).first<kTextIndices>()),
                         record.TextValues.At(indices));
    case modVantrel::kByteData:
      return fmt::format("    {}{}", ElementTag("byt", indices), record.ByteValues.At(indices));
    case modVantrel::kIntegerData:
      return fmt::format("    {}{}", ElementTag("int", indices), record.IntegerValues.At(indices));
    default:
      return fmt::format("    {}{}", ElementTag("sng", indices),
                         modAllPurposeNumbers::GeneralForm(record.SingleValues.At(indices)));
  }
}

bool HoldsValues(const ParamRecord& record) {
  return record.DataType == modVantrel::kTextData || record.DataType == modVantrel::kByteData ||
         record.DataType == modVantrel::kIntegerData || record.DataType == modVantrel::kSingleData;
}

// Prints the parameters of a group, in file order.
void PrintParamsOfGroup(const FileState& state, const ParamIndex& index, std::uint8_t groupId,
                        ReportOutput& output) {
  for (const std::int32_t position : index.ParamsOf(groupId)) {
    PrintGroupAndParams(modVantrel::ReadParamRecordAt(state, position), output);
  }
  index.RethrowFailure();
}

}  // namespace

std::string ElementTag(std::string_view type, std::span<const std::int32_t> indices) {
  std::string tag(type);
  for (std::size_t i = 0; i < indices.size(); ++i) {
    fmt::format_to(std::back_inserter(tag), "{}{}", i == 0 ? '(' : ',', indices[i]);
  }
  tag += ')';
  tag.resize(kTagWidth, ' ');
  return tag;
}

void PrintGroupAndParams(const ParamRecord& record, ReportOutput& output) {
  if (record.IsGroup()) {
    output.Line(record.Name);
    return;
  }
  output.Line("  " + record.Name);
  if (!HoldsValues(record)) return;
  ElementIndices indices = modVantrel::FirstElement();
  do {
    output.Line(ElementText(record, indices));
  } while (NextElement(indices, record));
}

void ShowAllGroups(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  modVantrel::WalkParamChain(state, [&](const ParamRecord& record, std::int32_t /*position*/) {
    if (record.IsGroup()) PrintGroupAndParams(record, output);
    return false;
  });
  for (int i = 0; i < 3; ++i) output.Line("");
}

void ShowAllGroupsAndAllParams(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  const ParamIndex index(state);
  for (const std::int32_t position : index.Groups()) {
    const ParamRecord group = modVantrel::ReadParamRecordAt(state, position);
    PrintGroupAndParams(group, output);
    PrintParamsOfGroup(state, index, group.Id, output);
  }
  index.RethrowFailure();
  output.Line("");
}

ReportResult ShowMatchingGroupAndAllParams(const FileState& state, std::string_view groupName,
                                           ReportOutput& output) {
  const ParamRecord group = modVantrel::FindGroup(state, groupName);
  if (group.Id == 0) return ReportResult::Rejected("group not found");

  output.BeginReport();
  PrintGroupAndParams(group, output);
  PrintParamsOfGroup(state, ParamIndex(state), group.Id, output);
  return ReportResult::Written();
}

ReportResult ShowMatchingGroupAndMatchingParam(const FileState& state, std::string_view groupName,
                                               std::string_view paramName, ReportOutput& output) {
  const modVantrel::GroupAndParam found =
      modVantrel::FindGroupAndParam(state, groupName, paramName);
  if (!found.GroupFound()) return ReportResult::Rejected("neither group nor param found");

  output.BeginReport();
  PrintGroupAndParams(found.Group, output);
  if (found.BothFound()) {
    PrintGroupAndParams(found.Param, output);
  } else {
    output.Line("");
    output.Line("param not found");
  }
  return ReportResult::Written();
}

}  // namespace reports
