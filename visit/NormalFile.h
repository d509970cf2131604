// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "visit/Normals.h"

// Files of normals: the table of norms as csv, and GCD files whose curves have a mean and a
// deviation on each line.
namespace visit {

// Why a text is no file of normals: what stands wrong, on which line, counted from 1.
struct NormalFault {
  std::int64_t Line = 1;
  std::string What;
};

// No file of normals is larger.
inline constexpr std::size_t kLargestNormalFile = std::size_t{64} * 1024 * 1024;

// The normals of a text in UTF-8, csv or GCD, lines ended by LF or CR LF.
std::variant<Normals, NormalFault> NormalsOfText(std::string_view text);

// The normals of the file at `path`, or the sentence that says why there are none: "PATH, line 12:
// ..." for a fault in the file, "PATH: ..." where it cannot be read.
std::variant<Normals, std::string> ReadNormalFile(const std::string& path);

}  // namespace visit
