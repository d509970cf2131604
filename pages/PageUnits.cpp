// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PageUnits.h"

#include <algorithm>
#include <array>

#include "support/Text.h"

namespace pages {

using modVantrel::PointKind;

namespace {

// A unit by the spellings of files, without what stands between its letters.
struct KnownUnit {
  PointKind Kind;
  std::string_view Spelling;
  std::string_view Shown;
  double Factor;
  bool FitsLayout;
};

constexpr double kMetresPerMillimetre = 0.001;

constexpr std::array kKnownUnits = {
    KnownUnit{PointKind::Angle, "", "deg", 1, true},
    KnownUnit{PointKind::Moment, "", "N·m/kg", kMetresPerMillimetre, true},
    KnownUnit{PointKind::Moment, "NMM/KG", "N·m/kg", kMetresPerMillimetre, true},
    KnownUnit{PointKind::Moment, "NMM", "N·m", kMetresPerMillimetre, false},
    KnownUnit{PointKind::Moment, "NM/KG", "N·m/kg", 1, true},
    KnownUnit{PointKind::Moment, "NM", "N·m", 1, false},
    KnownUnit{PointKind::Power, "", "W/kg", 1, true},
    KnownUnit{PointKind::Power, "W/KG", "W/kg", 1, true},
    KnownUnit{PointKind::Power, "W", "W", 1, false},
};

std::string SpellingOf(std::string_view unit) {
  std::string spelling = modAllPurpose::UpperCase(unit);
  for (const std::string_view between : {" ", ".", "*", "·", "\u22C5"}) {
    for (auto at = spelling.find(between); at != std::string::npos; at = spelling.find(between)) {
      spelling.erase(at, between.size());
    }
  }
  return spelling;
}

// Null where there is none.
const KnownUnit* FindUnit(PointKind kind, std::string_view spelling) {
  const auto* const known = std::ranges::find_if(kKnownUnits, [&](const KnownUnit& candidate) {
    return candidate.Kind == kind && candidate.Spelling == spelling;
  });
  return known == kKnownUnits.end() ? nullptr : known;
}

}  // namespace

ShownUnit UnitShownFor(PointKind kind, std::string_view unit) {
  const std::string spelling = SpellingOf(unit);
  if (const KnownUnit* known = FindUnit(kind, spelling)) {
    return {std::string(known->Shown), known->Factor, known->FitsLayout};
  }
  return {std::string(unit), 1, kind == PointKind::Angle && !spelling.starts_with("RAD")};
}

double FactorOfNormals(PointKind kind, std::string_view unit, const ShownUnit& shown) {
  if (const KnownUnit* known = FindUnit(kind, SpellingOf(unit))) return known->Factor;
  return unit == shown.Text ? shown.Factor : UnitShownFor(kind, "").Factor;
}

}  // namespace pages
