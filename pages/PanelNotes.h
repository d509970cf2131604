// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "pages/PanelLayouts.h"
#include "pages/ShownTrials.h"

namespace pages {

// Why curves of a panel are missing: the labels that no trial has, those that some lack, those
// whose values are not numbers, and those of another unit.
std::vector<std::string> NotesOf(const ShownTrials& shown, const PanelLayout& layout);

}  // namespace pages
