// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "visit/CurveStatistics.h"
#include "visit/GaitMeasures.h"
#include "visit/Statistics.h"
#include "visit/TrialCurves.h"

namespace visit {

// The normal curves of one variable, of left and right feet together.
struct NormCurves {
  std::string Label;  // without its letter, as the first file spells it
  std::string Unit;   // that of the first file
  CurveStatistics Samples;
};

// What is normal, from trials of controls. A sample is the mean curve of one trial and side, and
// likewise the mean of a measure; give one trial of each control, so that none counts twice.
class Norms {
 public:
  // The labels of a trial that begin with L or R, and the measures of its strides.
  void Add(const std::vector<LabelCurves>& curves, std::span<const GaitMeasures> strides);

  // In the order in which the trials first have them; some may be without a sample.
  const std::vector<NormCurves>& Curves() const { return curves_; }
  // In the order of GaitMeasureTable.
  const std::array<Statistics, kGaitMeasureCount>& Measures() const { return measures_; }

 private:
  std::vector<NormCurves> curves_;
  std::map<std::string, std::size_t> places_;  // in curves_, by label as it is compared
  std::array<Statistics, kGaitMeasureCount> measures_;
};

// Whether a label has a place among norms: a letter L or R in front of a name.
bool IsNormLabel(std::string_view label);

}  // namespace visit
