// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "gait/GcdCalcs.h"
#include "gait/SubjectRecord.h"

namespace modVantrel {

// What a GCD text leaves out.
struct GcdTextOptions {
  bool AppendMode = false;  // the header
  bool SuppressVideoRate = false;
};

// The text of the GCD file of stride `strideIndex`, from 1, lines ended by CR LF: the header, the
// measures, the video rate, and the curves that the file holds of the table of GCD curves. Sagittal
// values are the component along which the stride goes on, and 0 where that is not known. Errors as
// clsGcdCalcs.
std::string GcdText(clsGcdCalcs& calcs, std::int32_t strideIndex, const SubjectRecord& subject,
                    const GcdTextOptions& options = {});

}  // namespace modVantrel
