// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "c3d/FileState.h"

namespace modVantrel {

// Which labels an open trial is to know.
enum class Labels { First255, All };

// Opens `file` into a fresh `state`, with its gait events; answers with the sentence of a failed
// open, empty where all is well. Errors as OpenC3dFile.
std::string OpenTrial(const std::string& file, Labels labels, FileState& state);

}  // namespace modVantrel
