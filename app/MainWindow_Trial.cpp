// SPDX-License-Identifier: GPL-3.0-or-later

// The status of the open trial, and what its menu chooses.

#include <QAction>

#include "app/MainWindow.h"
#include "app/MessageBoxes.h"
#include "app/QtText.h"
#include "app/StatusLine.h"
#include "app/SubjectDialog.h"
#include "app/TrialStatus.h"
#include "app/frmVantrel.h"
#include "app/modMsgBoxPlus.h"
#include "c3d/ParamCatalog.h"
#include "gait/SubjectFile.h"
#include "support/RuntimeError.h"

namespace app {

using modVantrel::GcdAxes;

void MainWindow::ShowStatus() {
  StatusLine& line = form_->Status();
  connect(form_, &frmVantrel::Remarked, &line, &StatusLine::Remark);
  connect(form_, &frmVantrel::ReportChanged, &line, [&line] { line.Remark({}); });
  connect(&line, &QAbstractButton::clicked, this,
          [this] { form_->RunCommand([this] { form_->ShowCheckup(); }); });
}

void MainWindow::TakeOverTrialChoices() {
  form_->SetFurtherLabels(remembered_.FurtherLabels());
  form_->SetGcdAxes(remembered_.AnatomicalAxes() ? GcdAxes::Anatomical : GcdAxes::Walk);
  ShowMarks();
}

void MainWindow::ShowMarks() {
  const auto mark = [this](const char* name, bool isSo) {
    findChild<QAction*>(QLatin1String(name))->setChecked(isSo);
  };
  mark("mnuFurtherLabels", form_->FurtherLabels());
  mark("mnuAnatomicalAxes", form_->Axes() == GcdAxes::Anatomical);
}

void MainWindow::ToggleFurtherLabels() {
  const bool known = !form_->FurtherLabels();
  remembered_.SetFurtherLabels(known);
  form_->SetFurtherLabels(known);
}

void MainWindow::ToggleAnatomicalAxes() {
  const bool taken = form_->Axes() != GcdAxes::Anatomical;
  remembered_.SetAnatomicalAxes(taken);
  form_->SetGcdAxes(taken ? GcdAxes::Anatomical : GcdAxes::Walk);
}

void MainWindow::EditSubject() {
  const std::string trial = form_->OpenFileSpec();
  if (trial.empty()) return;
  const auto known = modVantrel::FindSubjectSources(trial, modVantrel::ParamCatalog(state_));
  SubjectDialog dialog(known, form_->EnteredSubject(), this);
  if (dialog.exec() != QDialog::Accepted) return;
  form_->SetSubject(dialog.Entered());
  const auto changed = dialog.Changed();
  if (!changed.empty()) OfferToKeep(changed);
}

void MainWindow::OfferToKeep(const std::vector<modVantrel::SubjectEntry>& entries) {
  const std::string trial = form_->OpenFileSpec();
  const QString keep = tr("Keep");
  const QString answer = modMsgBoxPlus::MsgBoxPlus(
      this, modMsgBoxPlus::kOkCancel, QStringLiteral("Vantrel"),
      tr("What was entered holds for this trial until the program ends.  Keep it in '%1', for all "
         "trials of the folder that do not say it themselves?  What else that file holds stays.")
          .arg(ToQString(modVantrel::SubjectFileOf(trial))),
      modMsgBoxPlus::kQuestionIcon, keep, tr("Do Not Keep"), {}, 0);
  if (answer != keep) return;
  try {
    modVantrel::KeepInSubjectFile(trial, entries);
    status_->FileChanged(trial);
  } catch (const modAllPurpose::RuntimeError& error) {
    ShowMessage(this, "The subject could not be kept.  " + std::string(error.what()) + "\n" +
                          error.About());
  }
}

}  // namespace app
