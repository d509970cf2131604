// SPDX-License-Identifier: GPL-3.0-or-later

#include "c3d/PointKinds.h"

#include <array>
#include <cstddef>
#include <utility>

#include "c3d/LabelTables.h"
#include "c3d/ParameterSection.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::SearchKey;

namespace {

// The parameters of the group POINT that list the labels of a kind and name its unit.
struct KindParams {
  PointKind Kind;
  std::string_view List;
  std::string_view Unit;
};

constexpr std::array kKindParams = {
    KindParams{PointKind::Angle, "ANGLES", "ANGLE_UNITS"},
    KindParams{PointKind::Force, "FORCES", "FORCE_UNITS"},
    KindParams{PointKind::Moment, "MOMENTS", "MOMENT_UNITS"},
    KindParams{PointKind::Power, "POWERS", "POWER_UNITS"},
    KindParams{PointKind::Scalar, "SCALARS", "SCALAR_UNITS"},
};

TextArray PointTexts(const FileState& state, std::string_view param) {
  return FindGroupAndParam(state, "POINT", param).Param.TextValues;
}

// The unit that `param` names, without what fills its field; empty for none.
std::string UnitIn(const FileState& state, std::string_view param) {
  const std::string unit = PointTexts(state, param).First().value_or("");
  return std::string(modAllPurpose::WithoutFilling(unit));
}

}  // namespace

PointKinds::PointKinds(const FileState& state) {
  modAllPurpose::IgnoringErrors([&] {
    const BinaryFile::Look look(state.C3dFileNumber);
    units_[PointKind::Marker] = UnitIn(state, "UNITS");
    for (const KindParams& params : kKindParams) {
      const TextArray labels = PointTexts(state, params.List);
      for (std::size_t i = 0; i < labels.Count(); ++i) {
        std::string key = SearchKey(WithoutPrefix(labels.InFileOrder(i), state.LabelPrefix));
        // A list may be longer than what it names; points without a label are none of it.
        if (!key.empty()) kinds_.emplace(std::move(key), params.Kind);
      }
      units_[params.Kind] = UnitIn(state, params.Unit);
    }
  });
}

PointKind PointKinds::KindOf(std::string_view label) const {
  const auto found = kinds_.find(SearchKey(label));
  return found == kinds_.end() ? PointKind::Marker : found->second;
}

const std::string& PointKinds::UnitOf(PointKind kind) const {
  static const std::string kNone;
  const auto unit = units_.find(kind);
  return unit == units_.end() ? kNone : unit->second;
}

}  // namespace modVantrel
