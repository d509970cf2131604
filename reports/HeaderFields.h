// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string_view>
#include <variant>
#include <vector>

#include "c3d/C3dHeader.h"
#include "c3d/FileState.h"

namespace reports {

// A single value of the header, or one that the open worked out.
struct HeaderField {
  std::string_view Name;
  std::variant<std::int32_t, float> Value;
  std::string_view Remark = {};  // behind the name in the text report
};

// The stored values in front of the header events, the number of those events, and the derived
// values, each in the order of the report. TimeBetweenFrames is the last.
std::vector<HeaderField> StoredHeaderFields(const modVantrel::C3dHeader& header);
HeaderField HeaderEventCount(const modVantrel::C3dHeader& header);
std::vector<HeaderField> DerivedHeaderFields(const modVantrel::FileState& state);

}  // namespace reports
