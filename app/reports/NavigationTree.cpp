#include "app/reports/NavigationTree.h"

#include <cstddef>

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

TreeNode ParamNode(const FileState& state, const std::string& groupName, const ParamRecord& param,
                   std::int32_t position) {
  TreeNode node{param.Name, {}};
  if (!HoldsLabels(groupName, param)) return node;
  const modVantrel::TextArray labels = modVantrel::ReadParamRecordAt(state, position).TextValues;
  for (std::size_t i = 0; i < labels.Count(); ++i) {
    node.Children.push_back({std::string(labels.InFileOrder(i)), {}});
  }
  return node;
}

TreeNode GroupNode(const FileState& state, const ParamRecord& group) {
  TreeNode node{group.Name, {}};
  modVantrel::WalkParamChain(state, [&](const ParamRecord& record, std::int32_t position) {
    if (record.IsParam() && record.Id == group.Id) {
      node.Children.push_back(ParamNode(state, group.Name, record, position));
    }
    return false;
  });
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
  std::vector<TreeNode> groups;
  modVantrel::WalkParamChain(state, [&](const ParamRecord& record, std::int32_t /*position*/) {
    if (record.IsGroup()) groups.push_back(GroupNode(state, record));
    return false;
  });
  return groups;
}

void ShowTree(const FileState& state, ReportOutput& output) {
  const std::vector<TreeNode> groups = FillTree(state);
  output.BeginReport();
  ShowNodes(groups, 0, output);
}

}  // namespace reports
