// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/StrideMarks.h"

#include <array>

#include "visit/Statistics.h"

namespace pages {

namespace {

struct MarkSpec {
  MarkKind Kind;
  double TrialStride::*Percent;
};

constexpr std::array kMarks = {
    MarkSpec{MarkKind::FootOff, &TrialStride::FootOff},
    MarkSpec{MarkKind::OppositeFootOff, &TrialStride::OppositeFootOff},
    MarkSpec{MarkKind::OppositeFootStrike, &TrialStride::OppositeFootStrike},
};

}  // namespace

void AddMarks(const ShownTrials& shown, modVantrel::GaitSide side, std::vector<Mark>& marks) {
  for (const MarkSpec& spec : kMarks) {
    visit::Statistics percent;
    for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
      for (const TrialStride* stride : shown.StridesOf(file)) {
        if (stride->Side == side && stride->IsComplete) percent.Add(stride->*spec.Percent);
      }
    }
    if (const auto mean = percent.Mean()) marks.push_back({side, spec.Kind, *mean});
  }
}

}  // namespace pages
