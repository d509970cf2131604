// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/SubjectDialog.h"

#include <string_view>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "app/QtText.h"
#include "app/TextBox.h"
#include "gait/SubjectFile.h"

namespace app {

using modVantrel::GivenDate;
using modVantrel::ParseIsoDate;
using modVantrel::SubjectEntry;
using modVantrel::SubjectOptions;

namespace {

struct Known {
  QString Value;
  QString Source;  // a sentence
};

QString FromPlace(const std::string& place) {
  return place == modVantrel::kSubjectFileName
             ? SubjectDialog::tr("From subject.ini of the folder.")
             : SubjectDialog::tr("From the trial: %1.").arg(ToQString(place));
}

Known EnteredBefore(const std::string& value) {
  return {ToQString(value), SubjectDialog::tr("Entered for this trial.")};
}

// The first date that can be read, as Write GCD Files takes it.
Known KnownDate(const std::vector<GivenDate>& dates, const std::string& entered) {
  if (!entered.empty()) return EnteredBefore(entered);
  for (const GivenDate& date : dates) {
    if (date.Date) return {ToQString(date.Text).trimmed(), FromPlace(date.Place)};
  }
  if (dates.empty()) return {{}, SubjectDialog::tr("Not known.")};
  return {{},
          SubjectDialog::tr("Not known: \u201c%1\u201d (%2) is no date.")
              .arg(ToQString(dates.front().Text), ToQString(dates.front().Place))};
}

Known KnownGender(const modVantrel::SubjectSources& known, const std::string& entered) {
  if (!entered.empty()) return EnteredBefore(entered);
  if (known.Gender.empty()) return {{}, SubjectDialog::tr("Not known.")};
  return {ToQString(known.Gender), FromPlace(known.GenderPlace)};
}

// What is wrong with a text that is to be a date; empty for nothing.
QString WrongDate(const QString& text) {
  if (text.trimmed().isEmpty() || ParseIsoDate(text.toStdString())) return {};
  return SubjectDialog::tr("\u201c%1\u201d is no date (YYYY-MM-DD).").arg(text);
}

std::string Trimmed(const QString& text) { return text.trimmed().toStdString(); }

}  // namespace

SubjectDialog::SubjectDialog(const modVantrel::SubjectSources& known, const SubjectOptions& entered,
                             QWidget* parent)
    : QDialog(parent), entered_(entered), rows_(new QFormLayout(this)) {
  setObjectName(QStringLiteral("SubjectDialog"));
  setWindowTitle(tr("Subject"));
  auto* purpose = new QLabel(tr("For the header of the GCD files."));
  rows_->addRow(purpose);

  const Known gender = KnownGender(known, entered.Gender);
  AddGender(gender.Value, gender.Source);
  const Known birth = KnownDate(known.BirthDates, entered.DateOfBirth);
  txtBirth_ = AddDate("txtBirth", tr("Date of &birth"), birth.Value, birth.Source);
  const Known visit = KnownDate(known.VisitDates, entered.VisitDate);
  txtVisit_ = AddDate("txtVisit", tr("Date of &visit"), visit.Value, visit.Source);
  shown_ = {Trimmed(GenderText()), Trimmed(txtBirth_->text()), Trimmed(txtVisit_->text())};

  lblWrong_ = new QLabel(QStringLiteral(" "));
  lblWrong_->setObjectName(QStringLiteral("lblWrong"));
  lblWrong_->setTextFormat(Qt::PlainText);
  rows_->addRow(lblWrong_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  cmdOk_ = buttons->button(QDialogButtonBox::Ok);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  rows_->addRow(buttons);
  Check();
}

QLabel* SubjectDialog::AddRow(const QString& label, QWidget* control, const QString& source) {
  rows_->addRow(label, control);
  control->setAccessibleName(QString(label).remove(u'&'));
  control->setAccessibleDescription(source);
  auto* told = new QLabel(source);
  told->setTextFormat(Qt::PlainText);
  told->setWordWrap(true);
  told->setObjectName(control->objectName() + QStringLiteral("_Source"));
  rows_->addRow(QString(), told);
  return told;
}

void SubjectDialog::AddGender(const QString& value, const QString& source) {
  cboGender_ = new QComboBox;
  cboGender_->setObjectName(QStringLiteral("cboGender"));
  cboGender_->addItem(tr("Not specified"), QString());
  cboGender_->addItem(tr("Female"), QStringLiteral("Female"));
  cboGender_->addItem(tr("Male"), QStringLiteral("Male"));
  const QString taken = ToQString(modVantrel::GenderName(value.toStdString()));
  int index = cboGender_->findData(taken);
  if (index < 0) index = 0;
  cboGender_->setCurrentIndex(index);
  const bool isForeign = index == 0 && !value.isEmpty();
  AddRow(tr("&Gender"), cboGender_,
         isForeign ? tr("%1 \u201c%2\u201d is neither female nor male there.").arg(source, value)
                   : source);
}

QLineEdit* SubjectDialog::AddDate(const char* name, const QString& label, const QString& value,
                                  const QString& source) {
  auto* box = new TextBox(value);
  box->setObjectName(QLatin1String(name));
  box->setPlaceholderText(tr("YYYY-MM-DD"));
  AddRow(label, box, source);
  connect(box, &QLineEdit::textChanged, this, &SubjectDialog::Check);
  return box;
}

QString SubjectDialog::GenderText() const { return cboGender_->currentData().toString(); }

void SubjectDialog::Check() {
  if (cmdOk_ == nullptr) return;
  QString wrong = WrongDate(txtBirth_->text());
  if (wrong.isEmpty()) wrong = WrongDate(txtVisit_->text());
  const auto birth = ParseIsoDate(txtBirth_->text().toStdString());
  const auto visit = ParseIsoDate(txtVisit_->text().toStdString());
  if (birth && visit && *birth > *visit) wrong = tr("The birth is behind the visit.");
  lblWrong_->setText(wrong.isEmpty() ? QStringLiteral(" ") : wrong);
  lblWrong_->setAccessibleName(wrong);
  cmdOk_->setEnabled(wrong.isEmpty());
}

SubjectOptions SubjectDialog::Entered() const {
  const auto now = [](const std::string& shown, const std::string& text, std::string& entered) {
    if (text != shown) entered = text;
  };
  SubjectOptions entered = entered_;
  now(shown_.Gender, Trimmed(GenderText()), entered.Gender);
  now(shown_.DateOfBirth, Trimmed(txtBirth_->text()), entered.DateOfBirth);
  now(shown_.VisitDate, Trimmed(txtVisit_->text()), entered.VisitDate);
  return entered;
}

std::vector<SubjectEntry> SubjectDialog::Changed() const {
  std::vector<SubjectEntry> changed;
  const auto add = [&changed](const char* key, const std::string& shown, const std::string& text) {
    if (text != shown) changed.push_back({key, text});
  };
  add("Gender", shown_.Gender, Trimmed(GenderText()));
  add("DOB", shown_.DateOfBirth, Trimmed(txtBirth_->text()));
  add("Date", shown_.VisitDate, Trimmed(txtVisit_->text()));
  return changed;
}

}  // namespace app
