// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/cli/ToolInside.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "cli/Tool.h"
#include "tests/TestTrials.h"

namespace tests {

namespace {

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream OpenForWriting(const std::filesystem::path& path) {
  Stream stream(std::fopen(path.string().c_str(), "wb"), std::fclose);
  if (!stream) throw std::runtime_error("cannot write " + path.string());
  return stream;
}

}  // namespace

ToolResult RunInside(const std::vector<std::string>& arguments) {
  const TemporaryFolder folder;
  Stream output = OpenForWriting(folder / "out");
  Stream error = OpenForWriting(folder / "err");
  const int status = cli::RunTool(arguments, {output.get(), error.get()});
  output.reset();
  error.reset();
  return {status, ReadWholeFile(folder / "out"), ReadWholeFile(folder / "err")};
}

}  // namespace tests
