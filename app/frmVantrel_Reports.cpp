// SPDX-License-Identifier: GPL-3.0-or-later

// The report commands of the form.

#include <QLineEdit>

#include "app/CaptionButton.h"
#include "app/CursorOverride.h"
#include "app/MessageBoxes.h"
#include "app/OutputPane.h"
#include "app/OverwritePrompt.h"
#include "app/frmVantrel.h"
#include "gait/GcdCommand.h"
#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NormalizedReport.h"
#include "reports/ParameterReport.h"
#include "reports/StrikeOffReport.h"

namespace app {

using modAllPurpose::ReportOutput;
using modAllPurpose::ReportResult;
using modVantrel::FileState;

namespace {

// Runs a report; what it had written before an error is shown in the pane.
ReportResult RunShowingWhatWasWritten(FormReport& output,
                                      const std::function<ReportResult(ReportOutput&)>& report) {
  const CursorOverride wait(Qt::WaitCursor);
  try {
    const ReportResult result = report(output);
    if (!result.IsRejected()) output.EndReport();
    return result;
  } catch (...) {
    output.ShowWritten();
    throw;
  }
}

}  // namespace

FormReport frmVantrel::NewReport(CopyToDesktop copyToDesktop) {
  return {*controls_.txt, *controls_.chkOut, desktopCopy_, DesktopOutputPath_, copyToDesktop};
}

void frmVantrel::ShowReport(const Report& report) {
  if (!EnsureFileOpen()) return;
  FormReport output = NewReport(CopyToDesktop::AsTicked);
  const ReportResult result = RunShowingWhatWasWritten(output, report);
  if (result.IsRejected()) controls_.txt->ReplaceText(result.Text());
}

void frmVantrel::ShowPlainReport(void (*report)(const FileState&, ReportOutput&)) {
  ShowReport([&](ReportOutput& output) {
    report(state_, output);
    return ReportResult::Written();
  });
}

void frmVantrel::ShowLabelReport(ReportResult (*report)(const FileState&, std::string_view,
                                                        ReportOutput&),
                                 const QLineEdit* labelBox) {
  const std::string label = labelBox->text().toStdString();
  ShowReport([&](ReportOutput& output) { return report(state_, label, output); });
}

void frmVantrel::cmdShowHeaderInfo_Click() { ShowPlainReport(reports::ShowHeaderInfo); }

void frmVantrel::cmdShowParameterHeader_Click() { ShowPlainReport(reports::ShowParameterHeader); }

void frmVantrel::cmdShowAllGroups_Click() { ShowPlainReport(reports::ShowAllGroups); }

void frmVantrel::cmdShowAllGroupsAndAllParams_Click() {
  ShowPlainReport(reports::ShowAllGroupsAndAllParams);
}

void frmVantrel::cmdShowMatchingGroupAndAllParams_Click() {
  ShowLabelReport(reports::ShowMatchingGroupAndAllParams, controls_.txtGroup);
}

void frmVantrel::cmdShowMatchingGroupAndMatchingParam_Click() {
  const std::string group = controls_.txtGroup->text().toStdString();
  const std::string param = controls_.txtParam->text().toStdString();
  ShowReport([&](ReportOutput& output) {
    return reports::ShowMatchingGroupAndMatchingParam(state_, group, param, output);
  });
}

void frmVantrel::cmdShowPointLabels_Click() { ShowPlainReport(reports::ShowPointLabels); }

void frmVantrel::cmdShowPointData_Click() {
  ShowLabelReport(reports::ShowPointData, controls_.txtPointLabel);
}

void frmVantrel::cmdShowPointDataWithEvents_Click() {
  ShowLabelReport(reports::ShowPointDataWithEvents, controls_.txtPointLabel);
}

void frmVantrel::cmdShowAnalogData_Click() {
  ShowLabelReport(reports::ShowAnalogData, controls_.txtAnalogLabel);
}

void frmVantrel::cmdShowAnalogDataWithEvents_Click() {
  ShowLabelReport(reports::ShowAnalogDataWithEvents, controls_.txtAnalogLabel);
}

void frmVantrel::cmdShowStrikeOffEvents_Click() { ShowPlainReport(reports::ShowStrikeOffEvents); }

void frmVantrel::cmdShowSingleValueStrikeOffMeasures_Click() {
  ShowPlainReport(reports::ShowSingleValueStrikeOffMeasures);
}

void frmVantrel::cmdShowNormalized_Click() {
  ShowLabelReport(reports::ShowNormalized, controls_.txtPointLabel);
}

void frmVantrel::cmdWriteGcdFiles_Click() {
  if (!EnsureFileOpen()) return;
  FormReport output = NewReport(CopyToDesktop::Never);
  OverwritePrompt prompt(this, output);
  const ReportResult result = RunShowingWhatWasWritten(output, [&](ReportOutput& lines) {
    return modVantrel::WriteGcdFiles(state_, {}, prompt, lines);
  });
  if (result.IsRejected()) {
    ShowMessage(this, result.Text());
    controls_.txt->ReplaceText(result.Text());
  }
  if (prompt.Cancelled()) Unload(0);
}

}  // namespace app
