// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/ListingReport.h"

#include <string>

#include <fmt/format.h>

#include "c3d/FrameData.h"
#include "reports/EventTag.h"
#include "support/NumberForms.h"
#include "support/Text.h"

namespace reports {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modAllPurposeNumbers::AppendNumber;
using modAllPurposeNumbers::NumberPattern;
using modVantrel::AnalogFrame;
using modVantrel::AnalogFrames;
using modVantrel::FileState;
using modVantrel::PointSample;
using modVantrel::PointSamples;

namespace {

constexpr NumberPattern kNumber("000");
constexpr NumberPattern kSampleNumber("0000");
constexpr NumberPattern kTime("00.00000");
constexpr NumberPattern kCoordinate("0000.0000");
constexpr NumberPattern kAnalogValue("0.00000000");

enum class Tags { Without, With };

void LabelLine(std::string_view label, ReportOutput& output) {
  output.Line(fmt::format("Label: '{}'", modAllPurpose::Trimmed(label)));
}

std::int32_t FrameNumber(const FileState& state, std::int32_t frameIndex) {
  return state.Header.FirstPointFrameNumber + frameIndex - 1;
}

void AppendColumn(std::string& line, const NumberPattern& pattern, double value) {
  line.append(2, ' ');
  AppendNumber(line, pattern, value);
}

// Prints lines into one text that is used again and again.
class LinePrinter {
 public:
  LinePrinter(const FileState& state, ReportOutput& output) : state_(state), output_(output) {}

  void FormatPointLine(std::int32_t frameIndex, const PointSample& sample) {
    line_.clear();
    AppendColumn(line_, kNumber, FrameNumber(state_, frameIndex));
    AppendColumn(line_, kTime, double{sample.Time});
    AppendColumn(line_, kCoordinate, double{sample.X});
    AppendColumn(line_, kCoordinate, double{sample.Y});
    AppendColumn(line_, kCoordinate, double{sample.Z});
    output_.Line(line_);
  }

  // `sampleCounter` numbers the samples of the whole listing.
  void FormatAnalogLine(std::int32_t& sampleCounter, std::int32_t frameIndex,
                        const AnalogFrame& frame, Tags tags) {
    // All lines of a frame share their first column and the time.
    line_.clear();
    AppendColumn(line_, kNumber, FrameNumber(state_, frameIndex));
    const std::size_t sharedSize = line_.size();
    time_.clear();
    AppendColumn(time_, kTime, double{frame.Time});
    for (std::int32_t k = 1; k <= state_.Header.AnalogSamplesPerChannel; ++k) {
      if (tags == Tags::With && k != 1) output_.Piece(kNoEventTag);
      ++sampleCounter;
      line_.resize(sharedSize);
      AppendColumn(line_, kSampleNumber, sampleCounter);
      line_ += time_;
      AppendColumn(line_, kAnalogValue, double{frame.Values[k]});
      output_.Line(line_);
    }
  }

 private:
  const FileState& state_;
  ReportOutput& output_;
  std::string line_;
  std::string time_;
};

void PointLines(const FileState& state, const PointSamples& samples, Tags tags,
                ReportOutput& output) {
  LinePrinter printer(state, output);
  EventTag tag;
  for (std::int32_t i = 1; i <= state.PointFrameCount; ++i) {
    const PointSample& sample = samples[i];
    if (tags == Tags::With) output.Piece(tag.For(sample.EventType, sample.EventSide));
    printer.FormatPointLine(i, sample);
  }
  output.Line("");
}

void AnalogLines(const FileState& state, const AnalogFrames& frames, Tags tags,
                 ReportOutput& output) {
  LinePrinter printer(state, output);
  EventTag tag;
  std::int32_t sampleCounter = 0;
  for (std::int32_t i = 1; i <= state.PointFrameCount; ++i) {
    const AnalogFrame frame = frames[i];
    if (tags == Tags::With) output.Piece(tag.For(frame.EventType, frame.EventSide));
    printer.FormatAnalogLine(sampleCounter, i, frame, tags);
  }
  output.Line("");
}

constexpr std::string_view kPointHeading =
    "All point data for label (Number, Time, X, Y, Z [Sagittal{X or Y}, Coronal{X or Y}, Axial{Z} "
    "for angles OR side-to-side{X or Y}, forward-backward{X or Y}, vertical for points{Z}]):";

// Two blanks stand in front of the bracket here.
constexpr std::string_view kPointHeadingWithEvents =
    "All point data for label (PIG Event, Number, Time, X, Y, Z  [Sagittal{X or Y}, Coronal{X or "
    "Y}, Axial{Z} for angles OR side-to-side{X or Y}, forward-backward{X or Y}, vertical for "
    "points{Z}]):";

ReportResult ListPoint(const FileState& state, std::string_view label, Tags tags,
                       ReportOutput& output) {
  if (!modVantrel::PointLabelExists(state, label)) {
    return ReportResult::Rejected("point label not found");
  }
  output.BeginReport();
  const PointSamples samples = tags == Tags::With
                                   ? modVantrel::GetPointDataWithEventsForLabel(state, label)
                                   : modVantrel::GetPointDataForLabel(state, label);
  LabelLine(label, output);
  output.Line(tags == Tags::With ? kPointHeadingWithEvents : kPointHeading);
  PointLines(state, samples, tags, output);
  return ReportResult::Written();
}

ReportResult ListAnalog(const FileState& state, std::string_view label, Tags tags,
                        ReportOutput& output) {
  if (!modVantrel::AnalogLabelExists(state, label)) {
    return ReportResult::Rejected("analog label not found");
  }
  output.BeginReport();
  const AnalogFrames frames = tags == Tags::With
                                  ? modVantrel::GetAnalogDataWithEventsForLabel(state, label)
                                  : modVantrel::GetAnalogDataForLabel(state, label);
  LabelLine(label, output);
  output.Line("All analog data for label (Frame, Slice, Time, Value):");
  AnalogLines(state, frames, tags, output);
  return ReportResult::Written();
}

}  // namespace

void ShowPointLabels(const FileState& state, ReportOutput& output) {
  output.BeginReport();
  for (std::int32_t i = 1; i <= state.Header.PointLabelCount; ++i) {
    std::string line;
    AppendNumber(line, kNumber, i);
    output.Line(line + "  " + state.PointLabels[i]);
  }
}

ReportResult ShowPointData(const FileState& state, std::string_view label, ReportOutput& output) {
  return ListPoint(state, label, Tags::Without, output);
}

ReportResult ShowPointDataWithEvents(const FileState& state, std::string_view label,
                                     ReportOutput& output) {
  return ListPoint(state, label, Tags::With, output);
}

ReportResult ShowAnalogData(const FileState& state, std::string_view label, ReportOutput& output) {
  return ListAnalog(state, label, Tags::Without, output);
}

ReportResult ShowAnalogDataWithEvents(const FileState& state, std::string_view label,
                                      ReportOutput& output) {
  return ListAnalog(state, label, Tags::With, output);
}

}  // namespace reports
