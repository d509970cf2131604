// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/StrideReport.h"

#include <string>
#include <vector>

#include "gait/EventNames.h"
#include "reports/AlignedText.h"
#include "support/NumberForms.h"

namespace reports {

void ShowStrides(const modVantrel::FileState& state, modAllPurpose::ReportOutput& output) {
  constexpr modAllPurposeNumbers::NumberPattern kTime("0.000");
  output.BeginReport();
  if (state.GaitEvents.ValidStrides.IsEmpty()) {
    output.Line("There are no valid strides.");
    return;
  }
  AlignedText table({{"side"},
                     {"number", Align::Right},
                     {"start (s)", Align::Right},
                     {"opposite foot off (s)", Align::Right},
                     {"opposite foot strike (s)", Align::Right},
                     {"foot off (s)", Align::Right},
                     {"stop (s)", Align::Right}});
  for (const modVantrel::StrideRecord& stride : state.GaitEvents.ValidStrides) {
    std::vector<std::string> cells = {std::string(modVantrel::SideName(stride.Side)),
                                      std::to_string(stride.Number)};
    for (const float time :
         {stride.StartStrikeTime, stride.OppositeFootOffTime, stride.OppositeFootStrikeTime,
          stride.SameFootOffTime, stride.StopStrikeTime}) {
      cells.push_back(FormatNumber(kTime, double{time}));
    }
    table.AddRow(std::move(cells));
  }
  table.Print(output);
}

}  // namespace reports
