// SPDX-License-Identifier: GPL-3.0-or-later

// The report commands of the form.

#include <utility>

#include <QLineEdit>

#include "app/CaptionButton.h"
#include "app/CursorOverride.h"
#include "app/MessageBoxes.h"
#include "app/OutputPane.h"
#include "app/OverwritePrompt.h"
#include "app/QtText.h"
#include "app/TextBox.h"
#include "app/frmVantrel.h"
#include "gait/GcdCommand.h"
#include "gait/OpenTrial.h"
#include "reports/CheckReport.h"
#include "reports/HeaderReport.h"
#include "reports/ListingReport.h"
#include "reports/MeasuresReport.h"
#include "reports/NormalizedReport.h"
#include "reports/ParameterReport.h"
#include "reports/StrideReport.h"
#include "reports/StrikeOffReport.h"
#include "reports/SummaryReport.h"

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
    ReportResult result = report(output);
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

void frmVantrel::PaneShows(std::optional<ShownReport> report) {
  shown_ = std::move(report);
  emit ReportChanged();
}

void frmVantrel::ShowReport(ShownReport what, const Report& report) {
  if (!EnsureFileOpen()) return;
  PaneShows({});
  FormReport output = NewReport(CopyToDesktop::AsTicked);
  const ReportResult result = RunShowingWhatWasWritten(output, report);
  if (result.IsRejected()) {
    controls_.txt->ShowText(result.Text());
  } else {
    PaneShows(std::move(what));
  }
}

void frmVantrel::ShowPlainReport(std::string_view name,
                                 void (*report)(const FileState&, ReportOutput&)) {
  ShowReport({name, {}}, [&](ReportOutput& output) {
    report(state_, output);
    return ReportResult::Written();
  });
}

void frmVantrel::ShowLabelReport(std::string_view name,
                                 ReportResult (*report)(const FileState&, std::string_view,
                                                        ReportOutput&),
                                 const QLineEdit* labelBox) {
  const std::string label = labelBox->text().toStdString();
  ShowReport({name, {.Labels = {label}}},
             [&](ReportOutput& output) { return report(state_, label, output); });
}

void frmVantrel::cmdShowHeaderInfo_Click() { ShowPlainReport("header", reports::ShowHeaderInfo); }

void frmVantrel::cmdShowParameterHeader_Click() {
  ShowPlainReport("parameter-header", reports::ShowParameterHeader);
}

void frmVantrel::cmdShowAllGroups_Click() { ShowPlainReport("groups", reports::ShowAllGroups); }

void frmVantrel::cmdShowAllGroupsAndAllParams_Click() {
  ShowPlainReport("parameters", reports::ShowAllGroupsAndAllParams);
}

void frmVantrel::cmdShowMatchingGroupAndAllParams_Click() {
  const std::string group = controls_.txtGroup->text().toStdString();
  ShowReport({"parameters", {.Group = group}}, [&](ReportOutput& output) {
    return reports::ShowMatchingGroupAndAllParams(state_, group, output);
  });
}

void frmVantrel::cmdShowMatchingGroupAndMatchingParam_Click() {
  const std::string group = controls_.txtGroup->text().toStdString();
  const std::string param = controls_.txtParam->text().toStdString();
  ShowReport({"parameters", {.Group = group, .Param = param}}, [&](ReportOutput& output) {
    return reports::ShowMatchingGroupAndMatchingParam(state_, group, param, output);
  });
}

void frmVantrel::cmdShowPointLabels_Click() { ShowPlainReport("labels", reports::ShowPointLabels); }

void frmVantrel::cmdShowPointData_Click() {
  ShowLabelReport("point", reports::ShowPointData, controls_.txtPointLabel);
}

void frmVantrel::cmdShowPointDataWithEvents_Click() {
  ShowLabelReport("point", reports::ShowPointDataWithEvents, controls_.txtPointLabel);
}

void frmVantrel::cmdShowAnalogData_Click() {
  ShowLabelReport("analog", reports::ShowAnalogData, controls_.txtAnalogLabel);
}

void frmVantrel::cmdShowAnalogDataWithEvents_Click() {
  ShowLabelReport("analog", reports::ShowAnalogDataWithEvents, controls_.txtAnalogLabel);
}

void frmVantrel::cmdShowStrikeOffEvents_Click() {
  ShowPlainReport("events", reports::ShowStrikeOffEvents);
}

void frmVantrel::cmdShowSingleValueStrikeOffMeasures_Click() {
  ShowPlainReport("measures", reports::ShowSingleValueStrikeOffMeasures);
}

void frmVantrel::cmdShowNormalized_Click() {
  ShowLabelReport("normalized", reports::ShowNormalized, controls_.txtPointLabel);
}

void frmVantrel::cmdWriteGcdFiles_Click() {
  if (!EnsureFileOpen()) return;
  PaneShows({});
  FormReport output = NewReport(CopyToDesktop::Never);
  OverwritePrompt prompt(this, output);
  const ReportResult result = RunShowingWhatWasWritten(output, [&](ReportOutput& lines) {
    const modVantrel::GcdOptions options{{}, EnteredSubject(), gcdAxes_};
    return modVantrel::WriteGcdFiles(state_, options, prompt, lines);
  });
  emit Remarked(ToQString(prompt.Remark()));
  if (result.IsRejected()) {
    ShowMessage(this, result.Text());
    controls_.txt->ShowText(result.Text());
  }
  if (prompt.Cancelled()) Unload(0);
}

void frmVantrel::ShowCheckup() {
  ShowReport({"check", {}}, [&](ReportOutput& output) {
    reports::ShowFindings(reports::CheckFile(DialogFileSpec_), output);
    return ReportResult::Written();
  });
}

void frmVantrel::ShowStrides() { ShowPlainReport("strides", reports::ShowStrides); }

void frmVantrel::ShowSummary() {
  ShowReport({"summary", {}}, [&](ReportOutput& output) {
    FileState trial;
    if (std::string refusal = OpenTrial(DialogFileSpec_, modVantrel::Labels::All, trial);
        !refusal.empty()) {
      return ReportResult::Rejected(std::move(refusal));
    }
    reports::ShowSummary(trial, output);
    return ReportResult::Written();
  });
}

}  // namespace app
