// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/VisitList.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

#include "app/QtText.h"
#include "app/ToolTip.h"
#include "gait/EventNames.h"
#include "support/FileSystem.h"

namespace app {

using modVantrel::GaitSide;
using modVantrel::Severity;

namespace {

constexpr int kSideRole = Qt::UserRole;
constexpr int kNumberRole = Qt::UserRole + 1;
constexpr int kPathRole = Qt::UserRole + 2;

Qt::CheckState CheckOf(bool isChecked) { return isChecked ? Qt::Checked : Qt::Unchecked; }

QString StateText(const VisitTrial& trial) {
  if (!trial.Failure.empty()) return ToQString(trial.Failure);
  return trial.Values ? QString() : VisitList::tr("Reading\u2026");
}

// The findings that a user should know of before trusting the curves, a line each.
QString WarningsOf(const VisitTrial& trial) {
  constexpr int kMost = 12;
  QStringList lines;
  for (const modVantrel::Finding& finding : trial.Findings) {
    if (finding.Level != Severity::Note) lines << ToQString(finding.Message);
  }
  const auto more = static_cast<int>(lines.size()) - kMost;
  if (more > 0) lines = lines.mid(0, kMost) << VisitList::tr("And %1 more.").arg(more);
  return lines.join(u'\n');
}

// A trial as a screen reader says it: with what is the matter with it.
std::string SpokenName(const VisitTrial& trial, const QString& warnings) {
  std::string name(modAllPurpose::OwnName(trial.Path));
  if (!trial.Failure.empty()) return name + ": " + trial.Failure;
  return warnings.isEmpty() ? name : name + ": " + warnings.toStdString();
}

StrideOfTrial StrideIn(const QTreeWidgetItem& item) {
  return {static_cast<GaitSide>(item.data(0, kSideRole).toInt()),
          item.data(0, kNumberRole).toInt()};
}

std::vector<StrideOfTrial> StridesUnder(const QTreeWidgetItem& item) {
  std::vector<StrideOfTrial> strides;
  strides.reserve(static_cast<std::size_t>(item.childCount()));
  for (int i = 0; i < item.childCount(); ++i) strides.push_back(StrideIn(*item.child(i)));
  return strides;
}

QTreeWidgetItem* NewStride(const pages::TrialStride& stride) {
  auto* item = new QTreeWidgetItem;
  const QString incomplete = stride.IsComplete ? QString() : VisitList::tr(" (incomplete)");
  item->setText(0, VisitList::tr("%1 stride %2%3")
                       .arg(ToQString(modVantrel::SideName(stride.Side)),
                            QString::number(stride.Number), incomplete));
  if (!stride.IsComplete) {
    item->setToolTip(0, VisitList::tr("Enters no mean: one of its events lies outside the trial."));
  }
  item->setData(0, kSideRole, static_cast<int>(stride.Side));
  item->setData(0, kNumberRole, stride.Number);
  item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  return item;
}

void UpdateStrides(QTreeWidgetItem& item, const VisitTrial& trial) {
  const auto& strides = trial.Values ? trial.Values->Strides : std::vector<pages::TrialStride>();
  const bool isSame =
      std::ranges::equal(StridesUnder(item), strides, [](const auto& a, const auto& stride) {
        return a == StrideOfTrial(stride.Side, stride.Number);
      });
  if (!isSame) {
    qDeleteAll(item.takeChildren());
    for (const pages::TrialStride& stride : strides) item.addChild(NewStride(stride));
    item.setExpanded(trial.IsTheForms);  // the others where a user opens them out
  }
  for (int i = 0; i < item.childCount(); ++i) {
    item.child(i)->setCheckState(0, CheckOf(!trial.LeftOut.contains(StrideIn(*item.child(i)))));
  }
}

}  // namespace

VisitList::VisitList(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("visitList"));
  setAccessibleName(tr("Trials of the visit"));
  setHeaderLabels({tr("Trial"), tr("Note")});
  header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  header()->setStretchLastSection(true);
  setTextElideMode(Qt::ElideRight);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  connect(this, &QTreeWidget::itemChanged, this, &VisitList::TakeChange);
}

void VisitList::Show(const Visit& visit) {
  isShowing_ = true;
  const auto& trials = visit.Trials();
  for (std::size_t i = 0; i < trials.size(); ++i) {
    const auto place = static_cast<int>(i);
    const QByteArray path = QByteArray::fromStdString(trials[i].Path);
    // Of what is there too much of, what stands before a known trial goes.
    while (topLevelItemCount() > static_cast<int>(trials.size()) &&
           topLevelItem(place)->data(0, kPathRole).toByteArray() != path) {
      delete takeTopLevelItem(place);
    }
    if (place >= topLevelItemCount()) addTopLevelItem(new QTreeWidgetItem);
    QTreeWidgetItem& item = *topLevelItem(place);
    if (item.data(0, kPathRole).toByteArray() != path) qDeleteAll(item.takeChildren());
    item.setData(0, kPathRole, path);
    Update(item, trials[i]);
  }
  while (topLevelItemCount() > static_cast<int>(trials.size())) {
    delete takeTopLevelItem(topLevelItemCount() - 1);
  }
  isShowing_ = false;
}

void VisitList::Update(QTreeWidgetItem& item, const VisitTrial& trial) {
  const QString warnings = WarningsOf(trial);
  const QString state = StateText(trial);
  item.setText(0, ToQString(modAllPurpose::OwnName(trial.Path)));
  item.setText(1, !state.isEmpty() || warnings.isEmpty() ? state : tr("See checkup"));
  item.setToolTip(0, WrappedToolTip(ToQString(trial.Path)));
  item.setToolTip(1, WrappedToolTip(trial.Failure.empty() ? warnings : state));
  item.setData(0, Qt::AccessibleTextRole, ToQString(SpokenName(trial, warnings)));
  item.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  item.setCheckState(0, CheckOf(trial.IsShown));
  const bool warns = !trial.Failure.empty() || !warnings.isEmpty();
  const auto icon =
      trial.Failure.empty() ? QStyle::SP_MessageBoxWarning : QStyle::SP_MessageBoxCritical;
  item.setIcon(1, warns ? style()->standardIcon(icon) : QIcon());
  QFont font = this->font();
  font.setBold(trial.IsTheForms);
  item.setFont(0, font);
  UpdateStrides(item, trial);
}

std::optional<std::size_t> VisitList::SelectedTrial() const {
  QTreeWidgetItem* item = currentItem();
  if (item == nullptr) return std::nullopt;
  QTreeWidgetItem* top = item->parent() == nullptr ? item : item->parent();
  return static_cast<std::size_t>(indexOfTopLevelItem(top));
}

void VisitList::TakeChange(QTreeWidgetItem* item) {
  if (isShowing_) return;
  const bool isChecked = item->checkState(0) == Qt::Checked;
  if (item->parent() == nullptr) {
    emit TrialChecked(static_cast<std::size_t>(indexOfTopLevelItem(item)), isChecked);
  } else {
    emit StrideChecked(static_cast<std::size_t>(indexOfTopLevelItem(item->parent())),
                       StrideIn(*item), isChecked);
  }
}

void VisitList::keyPressEvent(QKeyEvent* event) {
  const auto trial = SelectedTrial();
  if (event->key() == Qt::Key_Delete && trial && currentItem()->parent() == nullptr) {
    emit RemoveAsked(*trial);
    return;
  }
  QTreeWidget::keyPressEvent(event);
}

}  // namespace app
