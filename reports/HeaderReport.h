// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include "c3d/FileState.h"
#include "support/ReportOutput.h"

namespace reports {

// One blank and the upper-case hexadecimal code, without leading zeros, for each byte.
std::string HexDump(std::span<const std::byte> bytes);

// Every field of the 512-byte header, the header events, the reserved areas and the values derived
// at the open. Error 9 behind the eighteenth event where the header counts more than 18.
void ShowHeaderInfo(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

// The four bytes that open the parameter section, read afresh from the file.
void ShowParameterHeader(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output);

}  // namespace reports
