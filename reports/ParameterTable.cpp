// SPDX-License-Identifier: GPL-3.0-or-later

// The table of the parameters' values.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <fmt/format.h>

#include "c3d/ParamIndex.h"
#include "c3d/ParamRecord.h"
#include "c3d/ParameterSection.h"
#include "reports/TrialTables.h"

namespace reports {

using modVantrel::FileState;
using modVantrel::ParamRecord;

namespace {

std::string_view TypeName(std::uint8_t dataType) {
  switch (dataType) {
    case modVantrel::kTextData:
      return "character";
    case modVantrel::kByteData:
      return "byte";
    case modVantrel::kIntegerData:
      return "integer";
    default:
      return "float";
  }
}

// "3x2"; empty for a single value. A text's length is no dimension.
std::string DimensionsText(const ParamRecord& param) {
  const int ownLength = param.DataType == modVantrel::kTextData ? 1 : 0;
  const auto count = static_cast<std::size_t>(std::max(param.DimensionCount - ownLength, 0));
  return fmt::format("{}",
                     fmt::join(param.Dimensions.begin(),
                               param.Dimensions.begin() + static_cast<std::ptrdiff_t>(count), "x"));
}

// Writes the rows of parameters.
class ParameterWriter {
 public:
  ParameterWriter(std::string_view file, TableOutput& table) : file_(file), table_(table) {}

  void Rows(const std::string& group, const ParamRecord& param) {
    const auto write = [&](const auto& values, auto put) {
      for (std::size_t i = 0; i < values.Count(); ++i) {
        Start(group, param, i);
        put(values.InFileOrder(i));
        table_.EndRow();
      }
    };
    write(param.TextValues, [this](const std::string& text) { table_.Text(text); });
    write(param.ByteValues, [this](std::uint8_t value) { table_.Number(std::int32_t{value}); });
    write(param.IntegerValues, [this](std::int16_t value) { table_.Number(std::int32_t{value}); });
    write(param.SingleValues, [this](float value) { table_.Number(value); });
  }

 private:
  void Start(const std::string& group, const ParamRecord& param, std::size_t offset) {
    table_.Text(file_);
    table_.Text(group);
    table_.Text(param.Name);
    table_.Text(TypeName(param.DataType));
    table_.Text(DimensionsText(param));
    table_.Number(static_cast<std::int64_t>(offset) + 1);
  }

  std::string_view file_;
  TableOutput& table_;
};

void GroupRows(const FileState& state, const modVantrel::ParamIndex& index,
               const ParamRecord& group, ParameterWriter& writer) {
  for (const std::int32_t position : index.ParamsOf(group.Id)) {
    writer.Rows(group.Name, modVantrel::ReadParamRecordAt(state, position));
  }
  index.RethrowFailure();
}

Complaints OneParameter(const FileState& state, const std::string& group, const std::string& param,
                        ParameterWriter& writer) {
  const modVantrel::GroupAndParam found = modVantrel::FindGroupAndParam(state, group, param);
  if (!found.GroupFound()) return {"neither group nor param found"};
  if (!found.BothFound()) return {"param not found"};
  writer.Rows(found.Group.Name, found.Param);
  return {};
}

Complaints OneGroup(const FileState& state, const std::string& name, ParameterWriter& writer) {
  const ParamRecord group = modVantrel::FindGroup(state, name);
  if (group.Id == 0) return {"group not found"};
  GroupRows(state, modVantrel::ParamIndex(state), group, writer);
  return {};
}

}  // namespace

Complaints ParameterRows(const FileState& state, std::string_view file, const TableOptions& options,
                         TableOutput& table) {
  ParameterWriter writer(file, table);
  if (options.Group && options.Param) {
    return OneParameter(state, *options.Group, *options.Param, writer);
  }
  if (options.Group) return OneGroup(state, *options.Group, writer);
  const modVantrel::ParamIndex index(state);
  for (const std::int32_t position : index.Groups()) {
    GroupRows(state, index, modVantrel::ReadParamRecordAt(state, position), writer);
  }
  index.RethrowFailure();
  return {};
}

}  // namespace reports
