// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/LengthUnit.h"

#include <string>

#include "support/Text.h"

namespace modVantrel {

std::optional<double> MetresPerUnit(std::string_view unit) {
  const std::string key = modAllPurpose::SearchKey(modAllPurpose::WithoutFilling(unit));
  if (key == "MM") return 0.001;
  if (key == "CM") return 0.01;
  if (key == "M") return 1.0;
  return std::nullopt;
}

}  // namespace modVantrel
