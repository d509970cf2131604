// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QTreeWidget>

#include "app/Visit.h"

namespace app {

// The trials of a visit with their check marks, below each its strides with theirs, and what is to
// be said of a file beside its name. It shows a visit and changes none: who listens does.
class VisitList : public QTreeWidget {
  Q_OBJECT

 public:
  explicit VisitList(QWidget* parent);

  // Shows the visit as it is now. What was selected, opened out and scrolled to stays so, as far as
  // it is still there.
  void Show(const Visit& visit);

  // The trial that is selected, itself or by one of its strides: its place in the visit, from 0.
  std::optional<std::size_t> SelectedTrial() const;

 signals:
  void TrialChecked(std::size_t trial, bool isShown);
  void StrideChecked(std::size_t trial, const app::StrideOfTrial& stride, bool isShown);
  void RemoveAsked(std::size_t trial);

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Update(QTreeWidgetItem& item, const VisitTrial& trial);
  void TakeChange(QTreeWidgetItem* item);

  bool isShowing_ = false;
};

}  // namespace app
