// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>

#include <benchmark/benchmark.h>

#include "support/ReportOutput.h"

namespace bench {

// Takes a report and keeps nothing of it.
class DiscardedReport : public modAllPurpose::ReportOutput {
 public:
  void BeginReport() override {}
  void AppendOutput(std::string_view text, bool /*paneOnly*/, bool /*continueLine*/) override {
    benchmark::DoNotOptimize(text.data());
    size_ += text.size();
  }

  std::size_t Size() const { return size_; }

 private:
  std::size_t size_ = 0;
};

}  // namespace bench
