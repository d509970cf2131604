// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "app/CurveSearch.h"
#include "pages/Page.h"

namespace app {

// What is pointed at in one line: "Left stride 2 of walk.c3d, 40 %: Knee flexion 12.34 deg". Texts
// are UTF-8.
std::string PointedText(const pages::PageSet& set, const pages::Page& page, const PointedAt& what);

// "Left stride 2 of walk.c3d".
std::string StrideText(const pages::PageSet& set, const pages::StrideId& stride);

}  // namespace app
