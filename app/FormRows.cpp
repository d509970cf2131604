// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormRows.h"

#include <array>

#include "app/FormLayout.h"
#include "app/frmVantrel.h"

namespace app {

namespace {

constexpr int kRight = kFormMargin + kColumnWidth - kHalfWidth;  // left edge of the right half
constexpr int kOneLine = 25;  // heights of buttons by the lines of their captions
constexpr int kTwoLines = 37;

constexpr QRect Left(int top, int height) { return {kFormMargin, top, kHalfWidth, height}; }
constexpr QRect Right(int top, int height) { return {kRight, top, kHalfWidth, height}; }
constexpr QRect Whole(int top, int height) { return {kFormMargin, top, kColumnWidth, height}; }

constexpr auto kFormRows = std::to_array<FormRow>({
    ButtonRow{"cmdOpen", u"Open C3D", Left(8, kOneLine), &frmVantrel::cmdOpen_Click},
    ButtonRow{"cmdExit", u"Exit", Right(8, kOneLine), &frmVantrel::cmdExit_Click},
    ButtonRow{"cmdShowHeaderInfo", u"Show Header Info", Left(37, kOneLine),
              &frmVantrel::cmdShowHeaderInfo_Click, Qt::CTRL | Qt::Key_I},
    ButtonRow{"cmdShowParameterHeader", u"Show Parameter Header", Right(37, kOneLine),
              &frmVantrel::cmdShowParameterHeader_Click, Qt::CTRL | Qt::Key_H},
    TextBoxRow{"txtGroup",
               u"Group name",
               {kFormMargin, 71},
               &FormControls::txtGroup,
               &frmVantrel::cmdShowMatchingGroupAndAllParams_Click},
    TextBoxRow{"txtParam",
               u"Param name",
               {kRight, 71},
               &FormControls::txtParam,
               &frmVantrel::cmdShowMatchingGroupAndMatchingParam_Click},
    ButtonRow{"cmdShowAllGroups", u"Show All Groups", Left(99, kTwoLines),
              &frmVantrel::cmdShowAllGroups_Click, Qt::CTRL | Qt::Key_G},
    ButtonRow{"cmdShowAllGroupsAndAllParams", u"Show All Groups && All Params",
              Right(99, kTwoLines), &frmVantrel::cmdShowAllGroupsAndAllParams_Click,
              Qt::CTRL | Qt::SHIFT | Qt::Key_G},
    ButtonRow{"cmdShowMatchingGroupAndAllParams", u"Show Matching Group && All Params",
              Left(140, kTwoLines), &frmVantrel::cmdShowMatchingGroupAndAllParams_Click,
              Qt::CTRL | Qt::Key_M},
    ButtonRow{"cmdShowMatchingGroupAndMatchingParam", u"Show Matching Group && Matching Param",
              Right(140, kTwoLines), &frmVantrel::cmdShowMatchingGroupAndMatchingParam_Click,
              Qt::CTRL | Qt::SHIFT | Qt::Key_M},
    TextBoxRow{"txtPointLabel",
               u"Point label",
               {kFormMargin, 186},
               &FormControls::txtPointLabel,
               &frmVantrel::cmdShowPointData_Click},
    ButtonRow{"cmdShowPointLabels", u"Show Point Labels", Right(186, kOneLine),
              &frmVantrel::cmdShowPointLabels_Click, Qt::CTRL | Qt::Key_L},
    ButtonRow{"cmdShowPointData", u"Show Point Data for Matching Label", Left(215, kTwoLines),
              &frmVantrel::cmdShowPointData_Click, Qt::CTRL | Qt::Key_D},
    ButtonRow{"cmdShowPointDataWithEvents", u"Show Point Data with Events for Matching Label",
              Right(215, kTwoLines), &frmVantrel::cmdShowPointDataWithEvents_Click,
              Qt::CTRL | Qt::SHIFT | Qt::Key_D},
    TextBoxRow{"txtAnalogLabel",
               u"Analog label",
               {kFormMargin, 261},
               &FormControls::txtAnalogLabel,
               &frmVantrel::cmdShowAnalogData_Click},
    ButtonRow{"cmdShowAnalogData", u"Show Analog Data for Matching Label", Left(289, kTwoLines),
              &frmVantrel::cmdShowAnalogData_Click, Qt::CTRL | Qt::Key_N},
    ButtonRow{"cmdShowAnalogDataWithEvents", u"Show Analog Data with Events for Matching Label",
              Right(289, kTwoLines), &frmVantrel::cmdShowAnalogDataWithEvents_Click,
              Qt::CTRL | Qt::SHIFT | Qt::Key_N},
    ButtonRow{"cmdShowStrikeOffEvents", u"Show Strike/Off Events", Left(335, kTwoLines),
              &frmVantrel::cmdShowStrikeOffEvents_Click, Qt::CTRL | Qt::Key_T},
    ButtonRow{"cmdShowSingleValueStrikeOffMeasures", u"Show Single-Value Strike/Off Measures",
              Right(335, kTwoLines), &frmVantrel::cmdShowSingleValueStrikeOffMeasures_Click,
              Qt::CTRL | Qt::Key_R},
    ButtonRow{"cmdShowNormalized",
              u"Show Normalized (cubic spline, 51 points) Data for Label && Stride Events",
              Whole(376, kTwoLines), &frmVantrel::cmdShowNormalized_Click,
              Qt::CTRL | Qt::SHIFT | Qt::Key_R},
    ButtonRow{"cmdWriteGcdFiles", u"Write GCD Files", Whole(417, kOneLine),
              &frmVantrel::cmdWriteGcdFiles_Click, Qt::CTRL | Qt::SHIFT | Qt::Key_W},
});

}  // namespace

std::span<const FormRow> FormRows() { return kFormRows; }

}  // namespace app
