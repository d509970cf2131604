// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include <QDialog>

#include "gait/SubjectFileEdit.h"
#include "gait/SubjectRecord.h"

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace app {

// Asks for gender, date of birth and date of the visit, as they go into the header of GCD files. It
// shows what is known and where that comes from, and says of each date, as it is typed, whether it
// is one; only then can it be accepted.
class SubjectDialog : public QDialog {
  Q_OBJECT

 public:
  // `known` is what the trial and its folder give, `entered` what was entered for this trial
  // before.
  SubjectDialog(const modVantrel::SubjectSources& known, const modVantrel::SubjectOptions& entered,
                QWidget* parent);

  // What now goes before the trial and its folder: what was entered before, and what differs from
  // what is known.
  modVantrel::SubjectOptions Entered() const;

  // The entries that were changed in the dialog, as a subject file keeps them.
  std::vector<modVantrel::SubjectEntry> Changed() const;

 private:
  QLineEdit* AddDate(const char* name, const QString& label, const QString& value,
                     const QString& source);
  void AddGender(const QString& value, const QString& source);
  QLabel* AddRow(const QString& label, QWidget* control, const QString& source);
  QString GenderText() const;
  // Says what is wrong and lets only what is right be accepted.
  void Check();

  modVantrel::SubjectOptions entered_;
  modVantrel::SubjectOptions shown_;  // when the dialog came up
  QFormLayout* rows_;
  QComboBox* cboGender_ = nullptr;
  QLineEdit* txtBirth_ = nullptr;
  QLineEdit* txtVisit_ = nullptr;
  QLabel* lblWrong_ = nullptr;
  QPushButton* cmdOk_ = nullptr;
};

}  // namespace app
