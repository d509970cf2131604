// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <QRectF>

#include "pages/Page.h"

class QPainter;

namespace plot {

// Which curves are drawn; the values of a page hold both.
enum class Shown { Strides, Means };

// How a page is to look. It changes no number.
struct DrawingStyle {
  Shown Curves = Shown::Strides;
  bool IsMonochrome = false;              // for a printer without colours: black, greys and dashes
  bool IsDark = false;                    // light lines on a dark ground, on screens alone
  bool IsQuick = false;                   // thin lines of one pixel, which screens draw fast
  std::optional<pages::StrideId> Lifted;  // drawn thick, in front of the others, which grow pale
  double Enlarged = 1;  // how many times as large as on paper texts and lines stand on the sheet
};

// A panel that the wheel has enlarged: the part of it that is seen.
struct PanelView {
  double LowPercent = 0;
  double HighPercent = 100;
  double Low = 0;
  double High = 0;
};

// Where the parts of a page stand on a sheet, in the units of `sheet`.
struct PageGeometry {
  QRectF Sheet;
  QRectF Head;
  QRectF Foot;
  std::vector<QRectF> Panels;  // of each panel of the page with its texts
  std::vector<QRectF> Plots;   // the part of it in which curves stand
};

// `enlarged` as in the style that the page is drawn in.
PageGeometry GeometryOf(const pages::Page& page, const QRectF& sheet, double enlarged = 1);

// Draws page `index`, from 0, of `set` to fill `sheet`, in the painter's units. Texts are set in
// the carried fonts and fit; nothing is drawn outside the sheet, and no curve outside its panel.
void DrawPage(QPainter& painter, const pages::PageSet& set, std::size_t index, const QRectF& sheet,
              const DrawingStyle& style);

// Draws one panel alone, as DrawPage would: for a window that redraws what changed.
void DrawPanel(QPainter& painter, const pages::PageSet& set, std::size_t index, std::size_t panel,
               const PageGeometry& geometry, const DrawingStyle& style,
               const std::optional<PanelView>& view);

}  // namespace plot
