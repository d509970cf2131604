// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tests {

// Opens a new file for writing; an existing file or device stays what it is. For the output of a
// process.
int OutputFile(const std::filesystem::path& path);

// Makes this process, a child of the test, the built vantrel-report with `arguments` in `folder`
// (the current one where it is empty), its output in those files. Ends with 127 where that fails.
[[noreturn]] void BecomeTool(const std::vector<std::string>& arguments,
                             const std::filesystem::path& folder, int out, int err);

}  // namespace tests
