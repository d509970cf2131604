// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdCurveTable.h"

#include <array>

namespace modVantrel {

namespace {

// Newton-millimetres into newton-metres.
constexpr float kMomentScale = 0.001F;

// The rows "Supination" and "Skew" name a side although every variable gets the stride's side in
// front: readers of the format know them by these doubled names.
constexpr std::array kTable = {
    GcdCurveSpec{"WristAngles", "", "WristFlexExt", "WristUlRadDeviation", "", 1},
    GcdCurveSpec{"ElbowAngles", "", "ElbowFlexExt", "", "ElbowProSup", 1},
    GcdCurveSpec{"HeadAngles", "", "HeadFlexExt", "HeadLateralBend", "HeadRotation", 1},
    GcdCurveSpec{"ShoulderAngles", "", "ShoulderFlexExt", "ShoulderAbAdduct", "ShoulderRotation",
                 1},
    GcdCurveSpec{"TrunkAngles", "SpineAngles", "TrunkFlexExt", "TrunkLateralBend", "TrunkRotation",
                 1},
    GcdCurveSpec{"TrunkAbsAngles", "ThoraxAngles", "TrunkFlexExtAbs", "TrunkLateralBendAbs",
                 "TrunkRotationAbs", 1},
    GcdCurveSpec{"PelvisAnglesRab", "", "PelvicTiltRab", "PelvicObliquityRab", "PelvicRotationRab",
                 1},
    GcdCurveSpec{"PelvisAnglesBaker", "", "PelvicTiltBaker", "PelvicObliquityBaker",
                 "PelvicRotationBaker", 1},
    GcdCurveSpec{"AbsAnkleAngle", "", "AnkleFlexExtAbs", "", "", 1},
    GcdCurveSpec{"PelvisAngles", "", "PelvicTilt", "PelvicObliquity", "PelvicRotation", 1},
    GcdCurveSpec{"HipAngles", "", "HipFlexExt", "HipAbAdduct", "HipRotation", 1},
    GcdCurveSpec{"KneeAngles", "", "KneeFlexExt", "KneeValgVar", "KneeRotation", 1},
    GcdCurveSpec{"AnkleAngles", "", "DorsiPlanFlex", "", "FootRotation", 1},
    GcdCurveSpec{"FootProgressAngles", "", "", "", "FootProgression", 1},
    GcdCurveSpec{"TIBA", "", "TibiaTilt", "TibiaObliquity", "TibiaRotation", 1},
    GcdCurveSpec{"ANKA", "", "AnkleComplexDorsiPlanFlex", "AnkleComplexValgVar",
                 "AnkleComplexRotation", 1},
    GcdCurveSpec{"HFGA", "", "HindFootTilt", "HindFootObliquity", "", 1},
    GcdCurveSpec{"MDFA", "", "MidFootDorsiPlanFlex", "MidFootSupPron", "MidFootAbAdduct", 1},
    GcdCurveSpec{"FFGA", "", "ForeFootTilt", "", "", 1},
    GcdCurveSpec{"HLXA", "", "HalDorsiPlanFlex", "HalValgVar", "", 1},
    GcdCurveSpec{"Supination", "", "LeftSupination", "RightSupination", "", 1},
    GcdCurveSpec{"Skew", "", "LeftSkew", "RightSkew", "", 1},
    GcdCurveSpec{"HipMoment", "", "HipFlexExtMoment", "HipAbAdductMoment", "HipRotationMoment",
                 kMomentScale},
    GcdCurveSpec{"KneeMoment", "", "KneeFlexExtMoment", "KneeValgVarMoment", "KneeRotationMoment",
                 kMomentScale},
    GcdCurveSpec{"AnkleMoment", "", "DorsiPlanFlexMoment", "FootAbAdductMoment",
                 "FootRotationMoment", kMomentScale},
    GcdCurveSpec{"HipPower", "", "", "", "HipPower", 1},
    GcdCurveSpec{"KneePower", "", "", "", "KneePower", 1},
    GcdCurveSpec{"AnklePower", "", "", "", "AnklePower", 1},
};

}  // namespace

std::span<const GcdCurveSpec> GcdCurveTable() { return kTable; }

}  // namespace modVantrel
