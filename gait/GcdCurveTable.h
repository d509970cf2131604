// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

namespace modVantrel {

// One label of the GCD file: its name and alternative without the side letter, the names of its
// three variables (empty = not written) and the factor of its values.
struct GcdCurveSpec {
  std::string_view Label;
  std::string_view Alternative;
  std::string_view Sagittal;
  std::string_view Coronal;
  std::string_view Axial;
  float Scale;
};

// All labels in the order in which they are written.
std::span<const GcdCurveSpec> GcdCurveTable();

}  // namespace modVantrel
