// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/NavigationTree.h"

#include <cstddef>
#include <utility>

#include "c3d/ParamIndex.h"
#include "c3d/ParameterSection.h"
#include "support/Text.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurpose::UpperCase;
using modVantrel::FileState;
using modVantrel::ParamRecord;

namespace {

bool HoldsLabels(const std::string& groupName, const ParamRecord& param) {
  const std::string group = UpperCase(groupName);
  return (group == "POINT" || group == "ANALOG") && UpperCase(param.Name) == "LABELS" &&
         param.DataType == modVantrel::kTextData;
}

TreeNode ParamNode(const FileState& state, const std::string& groupName, std::int32_t position) {
  const ParamRecord param = modVantrel::ReadParamRecordAt(state, position);
  TreeNode node{param.Name, {}};
  if (!HoldsLabels(groupName, param)) return node;
  for (std::size_t i = 0; i < param.TextValues.Count(); ++i) {
    node.Children.push_back({param.TextValues.InFileOrder(i), {}});
  }
  return node;
}

void ShowNodes(const std::vector<TreeNode>& nodes, std::size_t level, ReportOutput& output) {
  for (const TreeNode& node : nodes) {
    output.Line(std::string(2 * level, ' ') + node.Text);
    ShowNodes(node.Children, level + 1, output);
  }
}

}  // namespace

std::vector<TreeNode> FillTree(const FileState& state) {
  const modVantrel::ParamIndex index(state);
  index.RethrowFailure();
  std::vector<TreeNode> groups;
  for (const std::int32_t position : index.Groups()) {
    const ParamRecord group = modVantrel::ReadParamRecordAt(state, position);
    TreeNode node{group.Name, {}};
    for (const std::int32_t param : index.ParamsOf(group.Id)) {
      node.Children.push_back(ParamNode(state, group.Name, param));
    }
    groups.push_back(std::move(node));
  }
  return groups;
}

void ShowTree(const FileState& state, ReportOutput& output) {
  const std::vector<TreeNode> groups = FillTree(state);
  output.BeginReport();
  ShowNodes(groups, 0, output);
}

}  // namespace reports
