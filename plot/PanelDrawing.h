// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include "pages/Page.h"
#include "plot/PageDrawing.h"
#include "plot/PanelFrame.h"

// The panels of each kind, in tenths of a point.
namespace plot {

void DrawCurvePanel(const Canvas& canvas, const PanelPlace& place, const pages::CurvePanel& panel,
                    const std::optional<PanelView>& view);

void DrawBarPanel(const Canvas& canvas, const PanelPlace& place, const pages::BarPanel& panel);

// The view's percents are those of the trace's time.
void DrawTracePanel(const Canvas& canvas, const PanelPlace& place, const pages::TracePanel& panel,
                    const pages::Trace& trace, const std::optional<PanelView>& view);

}  // namespace plot
