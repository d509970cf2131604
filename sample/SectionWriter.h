// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "sample/ParameterModel.h"
#include "sample/TrialBuilder.h"

namespace sample {

// The records of a parameter section, and where each one starts, counted from 1 at the first
// record: under "GROUP" for a group, "GROUP:PARAM" for a parameter.
struct WrittenSection {
  std::vector<std::byte> Records;
  std::map<std::string, std::int32_t> Positions;
};

WrittenSection WriteSection(const SectionSpec& section, std::uint8_t processor, RecordOrder order,
                            SectionEnd end);

}  // namespace sample
