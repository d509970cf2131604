// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/PanelLayouts.h"

#include <algorithm>
#include <array>

namespace pages {

namespace {

constexpr auto X = modVantrel::Component::X;
constexpr auto Y = modVantrel::Component::Y;
constexpr auto Z = modVantrel::Component::Z;
constexpr auto Angle = modVantrel::PointKind::Angle;
constexpr auto Moment = modVantrel::PointKind::Moment;
constexpr auto Power = modVantrel::PointKind::Power;

// clang-format off
constexpr std::array<PanelLayout, 12> kKinematics = {{
    {1, 1, "Pelvic tilt",         "PelvisAngles",       X, Angle,   0, 60, 20, "Post",  "Ant"},
    {1, 2, "Pelvic obliquity",    "PelvisAngles",       Y, Angle, -30, 30, 15, "Down",  "Up"},
    {1, 3, "Pelvic rotation",     "PelvisAngles",       Z, Angle, -30, 30, 15, "Back",  "Forw"},
    {2, 1, "Hip flexion",         "HipAngles",          X, Angle, -20, 80, 20, "Ext",   "Flex"},
    {2, 2, "Hip adduction",       "HipAngles",          Y, Angle, -30, 30, 15, "Abd",   "Add"},
    {2, 3, "Hip rotation",        "HipAngles",          Z, Angle, -30, 30, 15, "Ext",   "Int"},
    {3, 1, "Knee flexion",        "KneeAngles",         X, Angle, -20, 80, 20, "Ext",   "Flex"},
    {3, 2, "Knee varus",          "KneeAngles",         Y, Angle, -30, 30, 15, "Valg",  "Var"},
    {3, 3, "Knee rotation",       "KneeAngles",         Z, Angle, -30, 30, 15, "Ext",   "Int"},
    {4, 1, "Ankle dorsiflexion",  "AnkleAngles",        X, Angle, -30, 30, 15, "Plant", "Dors"},
    {4, 2, "Foot progression",    "FootProgressAngles", Z, Angle, -30, 30, 15, "Ext",   "Int"},
    {4, 3, "Ankle rotation",      "AnkleAngles",        Z, Angle, -30, 30, 15, "Ext",   "Int"},
}};

constexpr std::array<PanelLayout, 12> kKinetics = {{
    {1, 1, "Hip sagittal moment",   "HipMoment",   X, Moment, -2.0, 3.0, 1.00, "Flex", "Ext"},
    {1, 2, "Hip coronal moment",    "HipMoment",   Y, Moment, -2.0, 1.0, 0.50, "Add",  "Abd"},
    {1, 3, "Hip axial moment",      "HipMoment",   Z, Moment, -0.5, 0.5, 0.25, "Int",  "Ext"},
    {1, 4, "Hip power",             "HipPower",    Z, Power,  -3.0, 3.0, 1.00, "Abs",  "Gen"},
    {2, 1, "Knee sagittal moment",  "KneeMoment",  X, Moment, -1.0, 1.0, 0.50, "Flex", "Ext"},
    {2, 2, "Knee coronal moment",   "KneeMoment",  Y, Moment, -1.0, 1.0, 0.50, "Var",  "Valg"},
    {2, 3, "Knee axial moment",     "KneeMoment",  Z, Moment, -0.5, 0.5, 0.25, "Int",  "Ext"},
    {2, 4, "Knee power",            "KneePower",   Z, Power,  -3.0, 3.0, 1.00, "Abs",  "Gen"},
    {3, 1, "Ankle sagittal moment", "AnkleMoment", X, Moment, -1.0, 3.0, 1.00, "Dors", "Plant"},
    {3, 2, "Ankle coronal moment",  "AnkleMoment", Y, Moment, -0.5, 0.5, 0.25, "Add",  "Abd"},
    {3, 3, "Ankle axial moment",    "AnkleMoment", Z, Moment, -0.5, 0.5, 0.25, "Int",  "Ext"},
    {3, 4, "Ankle power",           "AnklePower",  Z, Power,  -2.0, 5.0, 1.00, "Abs",  "Gen"},
}};
// clang-format on

}  // namespace

std::span<const PanelLayout> PanelsOf(PageKind kind) {
  switch (kind) {
    case PageKind::Kinematics:
    case PageKind::Variability:
      return kKinematics;
    case PageKind::Kinetics:
      return kKinetics;
    default:
      return {};
  }
}

std::string_view TitleOfAngle(std::string_view label, modVantrel::Component part) {
  const auto* const panel = std::ranges::find_if(kKinematics, [&](const PanelLayout& layout) {
    return layout.Label == label && layout.Part == part;
  });
  return panel == kKinematics.end() ? std::string_view() : panel->Title;
}

}  // namespace pages
