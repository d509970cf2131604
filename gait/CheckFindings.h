// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "gait/Checkup.h"

namespace modVantrel {

// A kind of finding.
struct CheckKind {
  std::string_view Code;
  Severity Level;
};

// All kinds, in the order in which findings are given.
inline constexpr std::array kCheckKinds = {
    CheckKind{"cannot-open", Severity::Error},
    CheckKind{"parameters-damaged", Severity::Error},
    CheckKind{"data-cut-short", Severity::Error},
    CheckKind{"frame-count", Severity::Warning},
    CheckKind{"first-frame", Severity::Note},
    CheckKind{"rate-overridden", Severity::Note},
    CheckKind{"point-count", Severity::Warning},
    CheckKind{"analog-layout", Severity::Warning},
    CheckKind{"labels-missing", Severity::Warning},
    CheckKind{"labels-further", Severity::Note},
    CheckKind{"labels-repeated", Severity::Warning},
    CheckKind{"labels-empty", Severity::Warning},
    CheckKind{"labels-padded", Severity::Warning},
    CheckKind{"labels-encoding", Severity::Note},
    CheckKind{"label-single-letter", Severity::Warning},
    CheckKind{"unlabelled-points", Severity::Note},
    CheckKind{"point-gaps", Severity::Warning},
    CheckKind{"point-never-seen", Severity::Note},
    CheckKind{"units", Severity::Warning},
    CheckKind{"moment-units", Severity::Warning},
    CheckKind{"events-none", Severity::Warning},
    CheckKind{"event-outside", Severity::Warning},
    CheckKind{"event-minutes", Severity::Warning},
    CheckKind{"event-unsided", Severity::Note},
    CheckKind{"event-order", Severity::Warning},
    CheckKind{"event-close", Severity::Warning},
    CheckKind{"strides-none", Severity::Warning},
    CheckKind{"toe-markers", Severity::Warning},
    CheckKind{"walk-along-y", Severity::Warning},
    CheckKind{"walk-turns", Severity::Warning},
    CheckKind{"walk-in-place", Severity::Warning},
    CheckKind{"analysis-differs", Severity::Warning},
    CheckKind{"force-plates", Severity::Warning},
    CheckKind{"subject-missing", Severity::Note},
    CheckKind{"subject-date", Severity::Warning},
};

// A code of the table; a text that stands in no row of it does not compile.
class CheckCode {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a code is written as its text.
  consteval CheckCode(const char* code) : index_(IndexOf(code)) {}

  std::size_t Index() const { return index_; }

 private:
  static consteval std::size_t IndexOf(std::string_view code) {
    for (std::size_t i = 0; i < kCheckKinds.size(); ++i) {
      if (kCheckKinds[i].Code == code) return i;
    }
    throw "no such code";
  }

  std::size_t index_;
};

// Collects findings.
class Findings {
 public:
  void Add(CheckCode code, std::string place, std::string message) {
    entries_.push_back({code.Index(), std::move(place), std::move(message)});
  }

  // By kind, then by place: texts in their order, numbers in them by their value.
  std::vector<Finding> Sorted() const;

 private:
  struct Entry {
    std::size_t Kind;
    std::string Place;
    std::string Message;
  };

  std::vector<Entry> entries_;
};

}  // namespace modVantrel
