#include "app/reports/ListingReport.h"

#include <string>

#include "support/NumberForms.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurposeNumbers::AppendNumber;
using modAllPurposeNumbers::NumberPattern;
using modVantrel::FileState;

namespace {

constexpr NumberPattern kLabelNumber("000");

}  // namespace

void ShowPointLabels(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  for (std::int32_t i = 1; i <= state.Header.PointLabelCount; ++i) {
    std::string line;
    AppendNumber(line, kLabelNumber, i);
    output.Line(line + "  " + state.PointLabels[i]);
  }
}

}  // namespace reports
