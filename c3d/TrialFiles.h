// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/RuntimeError.h"

// The trials of a folder, by their names.
namespace modVantrel {

// Whether a file of that name is one: it ends in ".c3d", in any case.
bool IsTrialName(std::string_view name);

// Is told of a folder that cannot be read.
using UnreadFolder =
    std::function<void(const std::string& folder, const modAllPurpose::RuntimeError& why)>;

// The paths of all trials in `folder` and the folders below it, each folder's names in the order of
// their bytes, with what a folder holds at its place. Links to folders are not followed, `folder`
// itself aside; pipes and devices are left out, links that lead nowhere are not. A folder that
// cannot be read is told of and left out, as far as it was not read yet.
std::vector<std::string> TrialsBelow(const std::string& folder, const UnreadFolder& tell);

}  // namespace modVantrel
