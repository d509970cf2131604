// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// A node of the navigation tree: a group, a parameter of it, or a label of POINT:LABELS or
// ANALOG:LABELS.
struct TreeNode {
  std::string Text;
  std::vector<TreeNode> Children;
};

// The groups of the open file with their parameters, all in file order; under the two label
// parameters the labels as the file has them, prefix included.
std::vector<TreeNode> FillTree(const modVantrel::FileState& state);

// The tree as text, two blanks a level.
void ShowTree(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace reports
