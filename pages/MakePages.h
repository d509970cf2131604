// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <set>
#include <span>
#include <string>
#include <vector>

#include "pages/Page.h"
#include "pages/TrialValues.h"
#include "visit/Normals.h"

namespace pages {

// What the user wants to see.
struct PageChoice {
  std::vector<PageKind> Kinds;
  std::string Program;  // name and version, for the foot of the pages
  std::string Title;
  std::string Subject;
  const visit::Normals* Normals = nullptr;  // null for none; must outlive the call
  std::set<StrideId> LeftOut;               // neither drawn nor part of a number
};

// The pages of a visit: one of each kind in that order, and of kind Label one for each file and
// label that was read over time. It costs no reading, whatever the choice.
PageSet MakePages(std::span<const TrialValues> trials, const PageChoice& choice);

}  // namespace pages
