// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

#include "pages/Page.h"
#include "plot/PanelFrame.h"

// What stands around the panels of a page, in tenths of a point.
namespace plot {

// Title, subject, trials, strides and rate, and what the lines of both sides look like.
void DrawHead(const Canvas& canvas, const pages::PageSet& set, const pages::Page& page,
              const QRectF& head);

// How to read the panels, in one line.
void DrawCaption(const Canvas& canvas, const pages::Page& page, const QRectF& caption);

// Program, date of the files, page `index`, from 0, of how many.
void DrawFoot(const Canvas& canvas, const pages::PageSet& set, std::size_t index,
              const QRectF& foot);

}  // namespace plot
