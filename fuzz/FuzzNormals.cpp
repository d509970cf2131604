// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

#include "gait/GcdCurveTable.h"
#include "visit/NormalFile.h"
#include "visit/Scores.h"

namespace {

void Require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

void CheckFault(const visit::NormalFault& fault, std::string_view text) {
  Require(!fault.What.empty(), "a fault says what it is");
  Require(fault.Line >= 1 && fault.Line <= 1 + std::ranges::count(text, '\n'),
          "a fault stands on a line of the text");
}

// Numbers are finite or missing, whatever stands in the text.
void CheckNormals(const visit::Normals& normals) {
  Require(!normals.IsEmpty(), "normals hold something");
  for (const auto& row : modVantrel::GcdCurveTable()) {
    for (const auto component : modVantrel::kComponents) {
      const visit::NormalCurve* curve = normals.Curve(row.Label, component);
      if (curve == nullptr) continue;
      for (const double value : curve->Mean) Require(!std::isinf(value), "a mean is finite");
      for (const double value : curve->Deviation) Require(!std::isinf(value), "a deviation too");
    }
  }
  Require(visit::Scores().Against(normals).Lacking.size() == 2 * visit::kScoredVariables.size(),
          "no trial has no score");
}

}  // namespace

// A file of normals, csv or GCD: it is read whole or a line of it is named.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const auto read = visit::NormalsOfText(text);
  if (const auto* fault = std::get_if<visit::NormalFault>(&read)) {
    CheckFault(*fault, text);
  } else {
    CheckNormals(std::get<visit::Normals>(read));
  }
  return 0;
}
