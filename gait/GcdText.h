// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>

#include "gait/GcdCalcs.h"
#include "gait/SubjectRecord.h"

namespace modVantrel {

// Which components of a label are its sagittal and coronal curves: the one along which the stride
// goes on and the other, or the first and the second whatever the direction.
enum class GcdAxes { Walk, Anatomical };

// What a GCD text leaves out, and the axes of its curves.
struct GcdTextOptions {
  bool AppendMode = false;  // the header
  bool SuppressVideoRate = false;
  GcdAxes Axes = GcdAxes::Walk;
};

// The text of the GCD file of stride `strideIndex`, from 1, lines ended by CR LF: the header, the
// measures, the video rate, and the curves that the file holds of the table of GCD curves. By the
// axes of the walk, sagittal values are 0 where there are no toe markers to tell the direction.
// Errors as clsGcdCalcs.
std::string GcdText(clsGcdCalcs& calcs, std::int32_t strideIndex, const SubjectRecord& subject,
                    const GcdTextOptions& options = {});

}  // namespace modVantrel
