// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/RunCommandLine.h"

#include <cstdio>
#include <string>

#include <fmt/format.h>

#include "console/Complaint.h"
#include "console/StandardOutput.h"
#include "support/RuntimeError.h"

namespace console {

int Print(const AskedText& asked, const Streams& streams) {
  StandardOutput output(streams.Output);
  try {
    output.Piece(asked.Text);
    output.Flush();
  } catch (const OutputClosed&) {
    // Whoever asked has seen enough.
  } catch (const modAllPurpose::RuntimeError& error) {
    Complain(streams, RuntimeErrorLine(error));
    return kSomeFailed;
  }
  return kAllWell;
}

int RunCommandLine(const std::function<int()>& work, const Streams& streams) {
  try {
    return work();
  } catch (const UsageError& error) {
    Complain(streams, error.what());
    const std::string hint =
        fmt::format("Try '{} --help' for more information.\n", streams.Program);
    std::fputs(hint.c_str(), streams.Error);
    return kUsageError;
  }
}

}  // namespace console
