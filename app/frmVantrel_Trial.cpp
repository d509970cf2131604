// SPDX-License-Identifier: GPL-3.0-or-later

// What the form knows of the trial beyond its fixed reports: further labels, the subject, and the
// names that are proposed in the text boxes.

#include "app/BoxCompletion.h"
#include "app/MessageBoxes.h"
#include "app/NodeTree.h"
#include "app/QtText.h"
#include "app/TextBox.h"
#include "app/frmVantrel.h"
#include "c3d/LabelTables.h"

namespace app {

namespace {

using Labels = modAllPurpose::OneBasedTable<std::string>;

QStringList TextsOf(const Labels& labels) {
  QStringList texts;
  for (const std::string& label : labels) texts << ToQString(label);
  return texts;
}

QStringList GroupsIn(const NodeTree& tree) {
  QStringList groups;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) groups << tree.topLevelItem(i)->text(0);
  return groups;
}

// The parameters of all groups of that name, which is compared as the reports do.
QStringList ParamsIn(const NodeTree& tree, const QString& group) {
  QStringList params;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    const QTreeWidgetItem* item = tree.topLevelItem(i);
    if (item->text(0).compare(group, Qt::CaseInsensitive) != 0) continue;
    for (int k = 0; k < item->childCount(); ++k) params << item->child(k)->text(0);
  }
  return params;
}

}  // namespace

void frmVantrel::ProposeInBoxes() {
  ProposeNames(*controls_.txtGroup, [this] { return GroupsIn(*controls_.tre); });
  ProposeNames(*controls_.txtParam,
               [this] { return ParamsIn(*controls_.tre, controls_.txtGroup->text()); });
  ProposeNames(*controls_.txtPointLabel,
               [this] { return TextsOf(fileOpen_ ? state_.PointLabels : Labels()); });
  ProposeNames(*controls_.txtAnalogLabel,
               [this] { return TextsOf(fileOpen_ ? state_.AnalogLabels : Labels()); });
}

void frmVantrel::SetFurtherLabels(bool known) {
  furtherLabels_ = known;
  if (!fileOpen_) return;
  if (known) {
    AddFurtherLabels();
  } else {
    modVantrel::DropFurtherLabels(state_);
  }
}

void frmVantrel::AddFurtherLabels() {
  const bool read = modAllPurpose::IgnoringErrors([this] { modVantrel::AddFurtherLabels(state_); });
  if (read) return;
  modVantrel::DropFurtherLabels(state_);
  ShowMessage(this, "The further labels of this file cannot be read and are left out.");
}

void frmVantrel::SetSubject(const modVantrel::SubjectOptions& entered) {
  subjects_[DialogFileSpec_] = entered;
}

modVantrel::SubjectOptions frmVantrel::EnteredSubject() const {
  const auto known = subjects_.find(DialogFileSpec_);
  return known == subjects_.end() ? modVantrel::SubjectOptions() : known->second;
}

}  // namespace app
