// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include <QColor>
#include <QRectF>

#include "pages/Page.h"
#include "plot/PageFiles.h"

// Pages made by hand: what is drawn needs no trial.
namespace plot_tests {

// What they are drawn on, and the colours of the sides.
inline const QRectF kA4 = plot::SheetOf({});
inline const QColor kLeft(0xD32F2F);
inline const QColor kRight(0x1565C0);

struct Sample {
  int Strides = 1;  // a side
  int Files = 1;
  bool HasNormals = false;
  std::string Longer;  // behind every title, name and word
};

// A page of three by four panels: the first has values outside its range, the second a gap, the
// last is empty and says why.
pages::Page SampleCurves(const Sample& sample);

// Twelve panels of one group, as measures have.
pages::Page SampleMeasures(const Sample& sample);

// One panel of many groups, as scores have.
pages::Page SampleScores(const Sample& sample);

// A label over the whole trial, with a gap and events.
pages::Page SampleTrace(const Sample& sample);

// All of them.
pages::PageSet SamplePages(const Sample& sample);

}  // namespace plot_tests
