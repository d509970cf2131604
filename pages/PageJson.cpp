// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PageJson.h"

#include "gait/EventNames.h"
#include "pages/JsonWriter.h"
#include "visit/Scores.h"

namespace pages {

using modVantrel::GaitSide;
using modVantrel::SideName;

namespace {

std::string_view NameOf(MarkKind kind) {
  switch (kind) {
    case MarkKind::FootOff:
      return "foot_off";
    case MarkKind::OppositeFootOff:
      return "opposite_foot_off";
    case MarkKind::OppositeFootStrike:
      return "opposite_foot_strike";
  }
  return {};
}

// Writes the values of a set of pages, one kind of panel as the other.
class SetWriter {
 public:
  explicit SetWriter(const PageSet& set) : set_(set) {}

  std::string Text() {
    json_.Object([this] {
      json_.Member("program", set_.Program);
      json_.Member("title", set_.Title);
      if (!set_.Subject.empty()) json_.Member("subject", set_.Subject);
      json_.Key("files");
      json_.Array(set_.Files, [this](const PageFile& file) { json_.Put(file.Name); });
      json_.Key("pages");
      json_.Array(set_.Pages, [this](const Page& page) { WritePage(page); });
    });
    return json_.Text();
  }

 private:
  void WritePage(const Page& page) {
    json_.Object([&] {
      json_.Member("name", InfoOf(page.Kind).Name);
      json_.Member("rows", page.Rows);
      json_.Member("columns", page.Columns);
      if (page.OverTime) WriteTrace(page);
      json_.Key("panels");
      json_.Array(page.Panels, [&](const Panel& panel) {
        if (page.Kind == PageKind::Scores) {
          WriteScores(std::get<BarPanel>(panel));
        } else {
          std::visit([this](const auto& own) { WritePanel(own); }, panel);
        }
      });
      if (page.Kind == PageKind::Scores) WriteNotesOfPage(page);
    });
  }

  void WriteNotes(const std::vector<std::string>& notes) {
    if (!notes.empty()) json_.List("notes", notes);
  }

  void WriteNotesOfPage(const Page& page) {
    for (const Panel& panel : page.Panels) WriteNotes(std::get<BarPanel>(panel).Notes);
  }

  void WritePlace(int row, int column) {
    json_.Member("row", row);
    json_.Member("column", column);
  }

  void WriteRange(const Range& range) {
    json_.Member("low", range.Low);
    json_.Member("high", range.High);
    json_.Member("tick", range.Tick);
  }

  void WritePanel(const CurvePanel& panel) {
    json_.Object([&] {
      WritePlace(panel.Row, panel.Column);
      json_.Member("title", panel.Title);
      json_.Member("label", panel.Label);
      json_.Member("component", ComponentName(panel.Part));
      json_.Member("unit", panel.Unit);
      WriteRange(panel.Ordinate);
      json_.Member("widened", panel.Ordinate.IsWidened);
      json_.Member("down", panel.Down);
      json_.Member("up", panel.Up);
      WriteCurves(panel);
      WriteMeans(panel);
      if (panel.Normal) WriteBand(*panel.Normal);
      WriteMarks(panel);
      WriteDeviations(panel);
      WriteNotes(panel.Notes);
    });
  }

  void WriteCurves(const CurvePanel& panel) {
    json_.Key("curves");
    json_.Array(panel.Curves, [this](const Curve& curve) {
      json_.Object([&] {
        json_.Member("file", set_.Files.at(curve.Id.File).Name);
        json_.Member("side", SideName(curve.Id.Side));
        json_.Member("stride", curve.Id.Stride);
        json_.List("values", curve.Values);
      });
    });
  }

  void WriteMeans(const CurvePanel& panel) {
    json_.Key("means");
    json_.Array(panel.Means, [this](const MeanCurve& mean) {
      json_.Object([&] {
        json_.Member("side", SideName(mean.Side));
        json_.Member("n", mean.Count);
        json_.List("mean", mean.Mean);
        json_.List("sd", mean.Deviation);
      });
    });
  }

  void WriteBand(const NormalCurveBand& band) {
    json_.Key("normal");
    json_.Object([&] {
      json_.List("mean", band.Mean);
      json_.List("sd", band.Deviation);
    });
  }

  void WriteMarks(const CurvePanel& panel) {
    json_.Key("marks");
    json_.Array(panel.Marks, [this](const Mark& mark) {
      json_.Object([&] {
        json_.Member("side", SideName(mark.Side));
        json_.Member("kind", NameOf(mark.Kind));
        json_.Member("percent", mark.Percent);
      });
    });
  }

  void WriteDeviations(const CurvePanel& panel) {
    if (panel.Deviations.empty()) return;
    json_.Key("deviations");
    json_.Array(panel.Deviations, [this](const SideNumber& number) {
      json_.Object([&] {
        json_.Member("side", SideName(number.Side));
        json_.Member("sd", number.Value);
      });
    });
  }

  void WriteSide(const std::string& side, const Bar& bar) {
    json_.Member(side + "_mean", bar.Value);
    json_.Member(side + "_sd", bar.Deviation);
    json_.Member(side + "_n", bar.Count);
  }

  void WritePanel(const BarPanel& panel) {
    const BarGroup& group = panel.Groups.at(0);
    json_.Object([&] {
      WritePlace(panel.Row, panel.Column);
      json_.Member("title", panel.Title);
      json_.Member("measure", group.Name);
      json_.Member("unit", panel.Unit);
      WriteSide("left", group.Bars.at(0));
      WriteSide("right", group.Bars.at(1));
      json_.Member("asymmetry", group.Asymmetry);
      if (group.NormalMean) WriteNormal(group);
    });
  }

  void WriteNormal(const BarGroup& group) {
    json_.Key("normal");
    json_.Object([&] {
      json_.Member("mean", group.NormalMean);
      json_.Member("sd", group.NormalDeviation);
    });
  }

  // In the order of the table of scores: the variables of each side, then the profiles.
  void WriteScores(const BarPanel& panel) {
    for (const GaitSide side : {GaitSide::Left, GaitSide::Right}) {
      for (const BarGroup& group : panel.Groups) {
        if (group.Name == visit::kProfileScore) continue;
        for (const Bar& bar : group.Bars) {
          if (bar.Side == side) WriteScore(group, bar, panel.Unit);
        }
      }
    }
    for (const BarGroup& group : panel.Groups) {
      if (group.Name != visit::kProfileScore) continue;
      for (const Bar& bar : group.Bars) WriteScore(group, bar, panel.Unit);
    }
  }

  void WriteScore(const BarGroup& group, const Bar& bar, const std::string& unit) {
    json_.Object([&] {
      json_.Member("side", bar.Side == GaitSide::None ? visit::kOverall : SideName(bar.Side));
      json_.Member("variable", group.Name);
      json_.Member("score", bar.Value);
      json_.Member("n", bar.Count);
      json_.Member("unit", unit);
    });
  }

  void WriteTrace(const Page& page) {
    const Trace& trace = *page.OverTime;
    json_.Member("label", trace.Label);
    json_.Member("file", set_.Files.at(trace.File).Name);
    json_.List("time", trace.Times);
    std::string unit;
    for (const Panel& any : page.Panels) {
      const auto& panel = std::get<TracePanel>(any);
      json_.List(ComponentName(panel.Part), panel.Values);
      unit = panel.Unit;
    }
    json_.Member("unit", unit);
    json_.Key("events");
    json_.Array(trace.Events, [this](const TimedEvent& event) {
      json_.Object([&] {
        json_.Member("side", SideName(event.Side));
        json_.Member("type", EventTypeName(event.Type));
        json_.Member("time", static_cast<float>(event.Time));  // which it is in the trial
      });
    });
  }

  void WritePanel(const TracePanel& panel) {
    json_.Object([&] {
      WritePlace(panel.Row, panel.Column);
      json_.Member("component", ComponentName(panel.Part));
      WriteRange(panel.Ordinate);
      WriteNotes(panel.Notes);
    });
  }

  const PageSet& set_;
  JsonWriter json_;
};

}  // namespace

std::string JsonOf(const PageSet& set) { return SetWriter(set).Text(); }

}  // namespace pages
