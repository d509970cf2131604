// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/curves/CurvesInside.h"

#include <cstdio>

#include "curves/RunCurves.h"
#include "tests/TestTrials.h"

namespace tests {

ToolResult RunCurvesInside(const std::vector<std::string>& arguments) {
  const TemporaryFolder folder;
  std::FILE* const output = std::fopen((folder / "out").string().c_str(), "wb");
  std::FILE* const error = std::fopen((folder / "err").string().c_str(), "wb");
  const int status = curves::RunCurves(arguments, {output, error});
  std::fclose(output);
  std::fclose(error);
  return {status, ReadWholeFile(folder / "out"), ReadWholeFile(folder / "err")};
}

}  // namespace tests
