// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tests {

// How a run of vantrel-report ended.
struct ToolResult {
  int Status = -1;  // exit status; -1 where a signal ended it
  std::string Out;
  std::string Err;
};

// Where the tool's standard output goes, and what it may use.
struct ToolSurroundings {
  // A file or device to write to; empty to collect the output in the result.
  std::string Path = {};
  // A pipe whose reading end is closed before the tool starts.
  bool ClosedPipe = false;
  // The same for its standard error.
  bool ClosedErrorPipe = false;
  // No standard output and no standard error at all. On a POSIX system alone.
  bool NoStreams = false;
  // Bytes of address space that the tool may use; 0 for any number. Not for a sanitized tool, which
  // needs terabytes of it.
  std::size_t MostMemory = 0;
};

// Runs the built vantrel-report with `arguments` in `folder` (the current one where it is empty)
// and waits for its end.
ToolResult RunTool(const std::vector<std::string>& arguments,
                   const ToolSurroundings& surroundings = {},
                   const std::filesystem::path& folder = {});

}  // namespace tests
