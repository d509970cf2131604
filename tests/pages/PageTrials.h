// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "pages/MakePages.h"
#include "sample/TrialBuilder.h"

// Trials whose pages are known, and the ways to them.
namespace tests {

// A trial without points, 161 frames at 64 Hz, with two strides of either side. Each lasts 50
// frames, so that the 51 instants of a curve are frames: the left ones from frame 11 and 61, the
// right ones from frame 36 and 86. Foot off is at 60 %, opposite foot off at 10 %, opposite strike
// at 50 %.
sample::TrialBuilder TrialOfFourStrides();
inline constexpr std::int32_t kFirstLeftFrame = 11;
inline constexpr std::int32_t kSecondLeftFrame = 61;
inline constexpr std::int32_t kFirstRightFrame = 36;

// A point that is at one value before `frame` and at another from there on, in all coordinates.
sample::PointCurve Step(float before, std::int32_t frame, float after);

// What pages need of a trial: the labels of every page, and those over time.
pages::TrialValues ValuesOf(const sample::TrialBuilder& builder,
                            const std::vector<std::string>& overTime = {});
// The same as of a file of that name.
pages::TrialValues ValuesOf(const sample::TrialBuilder& builder, const std::string& file);

// The one page of a kind.
pages::Page PageOf(const std::vector<pages::TrialValues>& trials, pages::PageKind kind,
                   pages::PageChoice choice = {});

// The panel of that title; fails the test where there is none.
pages::CurvePanel PanelOf(const pages::Page& page, std::string_view title);

// The curves of one side.
std::vector<pages::Curve> CurvesOf(const pages::CurvePanel& panel, modVantrel::GaitSide side);

// The instants, from 0, at which a curve is missing.
std::vector<std::size_t> MissingOf(const pages::CurvePoints& points);

}  // namespace tests
