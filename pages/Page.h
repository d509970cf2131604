// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "c3d/Component.h"
#include "c3d/GaitEvents.h"
#include "pages/PageKinds.h"
#include "visit/CurveStatistics.h"

// Curve pages as plain values: what stands where, in which unit and range. Whatever draws or writes
// them adds nothing of its own to the numbers.
namespace pages {

// A stride of a set of files: the place of its file, from 0, its side and its number, from 1, among
// the strides of that side.
struct StrideId {
  std::size_t File = 0;
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::int32_t Stride = 0;

  // NOLINTNEXTLINE(modernize-use-nullptr): taken for a pointer is a 0 that nobody wrote.
  friend auto operator<=>(const StrideId&, const StrideId&) = default;
};

// The ordinate of a panel. Ticks stand at whole multiples of Tick from Low to High.
struct Range {
  double Low = 0;
  double High = 0;
  double Tick = 0;
  bool IsWidened = false;  // for curves that leave the range of its kind: its numbers are bold

  friend bool operator==(const Range&, const Range&) = default;
};

// Values at the 51 instants of a stride; those that are missing leave a gap in the line.
using CurvePoints = std::array<std::optional<float>, visit::kInstants>;
using MeanPoints = std::array<std::optional<double>, visit::kInstants>;

struct Curve {
  StrideId Id;
  CurvePoints Values{};
};

// The mean curve of a side over Count strides.
struct MeanCurve {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::int64_t Count = 0;
  MeanPoints Mean{};
  MeanPoints Deviation{};  // all missing for a single stride
};

struct NormalCurveBand {
  MeanPoints Mean{};
  MeanPoints Deviation{};
};

enum class MarkKind { FootOff, OppositeFootOff, OppositeFootStrike };

// An event of the stride, in percent, at the mean over the strides of its side.
struct Mark {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  MarkKind Kind = MarkKind::FootOff;
  double Percent = 0;
};

// A number of one side in the corner of a panel.
struct SideNumber {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  std::optional<double> Value;
};

// One component of a variable over the stride, both sides, all files.
struct CurvePanel {
  int Row = 1;  // from 1, like Column
  int Column = 1;
  std::string Title;  // "Knee flexion"
  std::string Label;  // without the letter of a side: "KneeAngles"
  modVantrel::Component Part = modVantrel::Component::X;
  std::string Unit;
  Range Ordinate;
  std::string Down;  // the direction of low values, and of high ones
  std::string Up;
  std::vector<Curve> Curves;     // left, then right; in the order of files and strides
  std::vector<MeanCurve> Means;  // of the sides that have curves to take a mean of
  std::optional<NormalCurveBand> Normal;
  std::vector<Mark> Marks;
  std::vector<SideNumber> Deviations;  // mean deviation from stride to stride, where it is shown
  std::vector<std::string> Notes;      // why curves are missing, a line each
};

// A number with its deviation as a bar.
struct Bar {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;  // none for both sides together
  std::int64_t Count = 0;
  std::optional<double> Value;
  std::optional<double> Deviation;
};

// Bars that stand side by side above one name.
struct BarGroup {
  std::string Name;  // as tables name it: "step_width", "KneeAngles.x", "GPS"
  std::string Title;
  std::vector<Bar> Bars;
  std::optional<double> Asymmetry;   // in percent
  std::optional<double> NormalMean;  // a band behind the bars
  std::optional<double> NormalDeviation;
};

// Groups of bars with one ordinate. The ordinate always holds 0.
struct BarPanel {
  int Row = 1;
  int Column = 1;
  std::string Title;
  std::string Unit;
  Range Ordinate;
  std::vector<BarGroup> Groups;
  std::vector<std::string> Notes;
};

// An event of the trial at a time, in seconds.
struct TimedEvent {
  modVantrel::GaitSide Side = modVantrel::GaitSide::None;
  modVantrel::GaitEventType Type = modVantrel::GaitEventType::Other;
  double Time = 0;
};

// One coordinate of a label over the whole trial. Values stand at the times of the panel's page.
struct TracePanel {
  int Row = 1;
  int Column = 1;
  std::string Title;
  modVantrel::Component Part = modVantrel::Component::X;
  std::string Unit;
  Range Ordinate;
  std::vector<std::optional<float>> Values;  // missing where the label is not seen
  std::vector<std::string> Notes;
};

using Panel = std::variant<CurvePanel, BarPanel, TracePanel>;

// What only a page of a label over time has.
struct Trace {
  std::size_t File = 0;      // its place in the set, from 0
  std::string Label;         // as the file spells it
  std::vector<float> Times;  // seconds of the trial, one for each frame
  std::vector<TimedEvent> Events;
  std::int64_t LeftStrides = 0;  // of this file, less those that are left out
  std::int64_t RightStrides = 0;
};

struct Page {
  PageKind Kind = PageKind::Kinematics;
  std::string Title;
  int Rows = 1;
  int Columns = 1;
  std::vector<Panel> Panels;
  std::optional<Trace> OverTime;
};

struct PageFile {
  std::string Name;  // as it was given
  std::string Date;  // of the file itself, ISO; empty where that is unknown
  double Rate = 0;   // frames per second
};

// Everything that stands on the pages of a visit.
struct PageSet {
  std::string Program;  // name and version
  std::string Title;
  std::string Subject;
  std::vector<PageFile> Files;
  std::int64_t LeftStrides = 0;  // drawn
  std::int64_t RightStrides = 0;
  std::vector<Page> Pages;
};

}  // namespace pages
