// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/PageDrawing.h"

#include <variant>

#include <QPainter>

#include "plot/Colours.h"
#include "plot/HeadAndFoot.h"
#include "plot/PageLayout.h"
#include "plot/PanelDrawing.h"

namespace plot {

namespace {

// Lets a painter draw in tenths of a point, as long as this lives.
class TenthsOfAPoint {
 public:
  TenthsOfAPoint(QPainter& painter, const QRectF& sheet, double enlarged) : painter_(painter) {
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(sheet.topLeft());
    painter.scale(ScaleOf(sheet, enlarged), ScaleOf(sheet, enlarged));
  }
  TenthsOfAPoint(const TenthsOfAPoint&) = delete;
  TenthsOfAPoint& operator=(const TenthsOfAPoint&) = delete;
  ~TenthsOfAPoint() { painter_.restore(); }

 private:
  QPainter& painter_;
};

// A variability page is about its strides, whatever the others show.
DrawingStyle StyleOn(const pages::Page& page, DrawingStyle style) {
  if (page.Kind == pages::PageKind::Variability) style.Curves = Shown::Strides;
  return style;
}

struct PanelDrawing {
  const Canvas& Page;
  const PanelPlace& Place;
  const pages::Page& Values;
  const std::optional<PanelView>& View;

  void operator()(const pages::CurvePanel& panel) const {
    DrawCurvePanel(Page, Place, panel, View);
  }
  void operator()(const pages::BarPanel& panel) const { DrawBarPanel(Page, Place, panel); }
  void operator()(const pages::TracePanel& panel) const {
    DrawTracePanel(Page, Place, panel, Values.OverTime.value_or(pages::Trace()), View);
  }
};

}  // namespace

void DrawPage(QPainter& painter, const pages::PageSet& set, std::size_t index, const QRectF& sheet,
              const DrawingStyle& style) {
  const pages::Page& page = set.Pages.at(index);
  const DrawingStyle styleHere = StyleOn(page, style);
  const Canvas canvas{painter, styleHere};
  const QRectF paper = LaidOut(sheet, style.Enlarged);
  const PageGeometry layout = GeometryOf(page, paper, style.Enlarged);
  const TenthsOfAPoint tenths(painter, sheet, style.Enlarged);
  painter.fillRect(paper, ColoursOf(style).Ground);
  DrawHead(canvas, set, page, layout.Head);
  for (std::size_t i = 0; i < page.Panels.size(); ++i) {
    std::visit(PanelDrawing{canvas, {layout.Panels[i], layout.Plots[i]}, page, std::nullopt},
               page.Panels[i]);
  }
  DrawCaption(canvas, page, CaptionOf(layout));
  DrawFoot(canvas, set, index, layout.Foot);
}

void DrawPanel(QPainter& painter, const pages::PageSet& set, std::size_t index, std::size_t panel,
               const PageGeometry& geometry, const DrawingStyle& style,
               const std::optional<PanelView>& view) {
  const pages::Page& page = set.Pages.at(index);
  const DrawingStyle styleHere = StyleOn(page, style);
  const Canvas canvas{painter, styleHere};
  const PageGeometry layout =
      GeometryOf(page, LaidOut(geometry.Sheet, style.Enlarged), style.Enlarged);
  const TenthsOfAPoint tenths(painter, geometry.Sheet, style.Enlarged);
  const PanelPlace place{layout.Panels.at(panel), layout.Plots.at(panel)};
  painter.fillRect(place.Cell, ColoursOf(style).Ground);
  std::visit(PanelDrawing{canvas, place, page, view}, page.Panels.at(panel));
}

}  // namespace plot
