// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CurvesWindow.h"

#include <algorithm>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QProgressBar>
#include <QSplitter>
#include <QTabBar>
#include <QTimer>

#include "app/PointedText.h"
#include "app/QtText.h"
#include "app/ToolTip.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace app {

using pages::PageKind;

CurvesWindow::CurvesWindow()
    : chosen_(memory_.Curves()), writing_(new Background(this)), background_(new Background(this)) {
  setObjectName(QStringLiteral("CurvesWindow"));
  setAcceptDrops(true);
  LayOut();
  AddMenus();
  AddStatus();
  ConnectParts();
  OpenAtItsPlace();
  UpdateAll();
}

// What is under way speaks to the window: it ends before the window's parts do.
CurvesWindow::~CurvesWindow() {
  background_->Cancel();
  writing_->Cancel();
}

void CurvesWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  ReadWhatIsNew();
  ReadLabels();
}

void CurvesWindow::closeEvent(QCloseEvent* event) {
  // A file that is asked for is written, unless that is cancelled.
  while (writing_->IsBusy()) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
  // What was not read by now is read when the window is opened again.
  EndReading();
  visit_.GiveUp({}, {});
  Remember();
  event->accept();
}

void CurvesWindow::ShowPage(PageKind kind) {
  const auto* page = std::ranges::find(pages::kPages, kind, &pages::PageInfo::Kind);
  tabs_->setCurrentIndex(static_cast<int>(page - pages::kPages.begin()));
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  view_->setFocus();
}

PageKind CurvesWindow::Kind() const {
  const int index = std::max(tabs_->currentIndex(), 0);
  return pages::kPages.at(static_cast<std::size_t>(index)).Kind;
}

plot::Shown CurvesWindow::Curves() const {
  if (chosen_) return *chosen_;
  return visit_.OnPages().size() > 1 ? plot::Shown::Means : plot::Shown::Strides;
}

void CurvesWindow::ChooseCurves(plot::Shown curves) {
  chosen_ = curves;
  memory_.SetCurves(curves);
  ChooseStyle();
}

void CurvesWindow::ChooseStyle() {
  memory_.SetMonochrome(monochrome_->isChecked());
  memory_.SetLandscape(landscape_->isChecked());
  view_->SetStyle(Curves(), monochrome_->isChecked());
}

pages::PageChoice CurvesWindow::Choice(const std::vector<PageKind>& kinds) const {
  pages::PageChoice choice;
  choice.Kinds = kinds;
  choice.Program = "Vantrel " VANTREL_VERSION;
  choice.Normals = normals_.IsEmpty() ? nullptr : &normals_;
  return choice;
}

std::vector<PageKind> CurvesWindow::AllKinds() const {
  std::vector<PageKind> kinds;
  for (const pages::PageInfo& page : pages::kPages) {
    if (page.Kind == PageKind::Scores && normals_.IsEmpty()) continue;
    if (page.Kind == PageKind::Label && label_.empty()) continue;
    kinds.push_back(page.Kind);
  }
  return kinds;
}

QString CurvesWindow::Hint() const {
  if (IsBusy() && visit_.OnPages().empty()) return tr("Reading\u2026");
  if (visit_.Trials().empty()) {
    return tr("Add trials to this visit, drop them here, or open one in the program's window.");
  }
  if (visit_.OnPages().empty()) return tr("No trial that could be read has its check mark.");
  if (IsBusy()) return tr("Reading\u2026");
  if (label_.empty()) return tr("These trials have no labels.");
  return tr("None of these trials has the label %1.").arg(ToQString(label_));
}

void CurvesWindow::UpdatePage() {
  pages::PageSet set;
  QString hint = Hint();
  try {
    if (!visit_.OnPages().empty()) set = visit_.Pages(Choice({Kind()}));
  } catch (const modAllPurpose::RuntimeError& error) {
    hint = ToQString(modAllPurpose::RuntimeErrorLine(error));
  }
  if (Kind() != PageKind::Label) labelPage_ = 0;
  if (!set.Pages.empty()) labelPage_ = std::min(labelPage_, set.Pages.size() - 1);
  view_->SetStyle(Curves(), monochrome_->isChecked());
  view_->SetPage(std::move(set), labelPage_, hint);
}

void CurvesWindow::TurnPage(int by) {
  const auto next = static_cast<std::ptrdiff_t>(labelPage_) + by;
  const auto count = static_cast<std::ptrdiff_t>(view_->Set().Pages.size());
  if (Kind() == PageKind::Label && next >= 0 && next < count) {
    labelPage_ = static_cast<std::size_t>(next);
    UpdatePage();
    return;
  }
  tabs_->setCurrentIndex(std::clamp(tabs_->currentIndex() + by, 0, tabs_->count() - 1));
}

void CurvesWindow::UpdateAll() {
  list_->Show(visit_);
  UpdateLabels();
  UpdatePage();
  UpdateEntries();
  const auto& trials = visit_.Trials();
  QString title = tr("Curves");
  if (!trials.empty()) {
    title += QStringLiteral(" \u2013 ") + ToQString(modAllPurpose::OwnName(trials.front().Path));
    if (trials.size() > 1) title += tr(" and %n more", "", static_cast<int>(trials.size()) - 1);
  }
  // "[*]" is the toolkit's mark for unsaved changes; doubled it shows as it stands.
  setWindowTitle(title.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
}

void CurvesWindow::UpdateLabels() {
  QStringList names;
  for (const std::string& label : visit_.Labels()) names << ToQString(label);
  QStringList known;
  for (int i = 0; i < labels_->count(); ++i) known << labels_->itemText(i);
  if (names == known) return;
  const QSignalBlocker quiet(labels_);
  labels_->clear();
  labels_->addItems(names);
  const auto place = static_cast<int>(names.indexOf(ToQString(label_)));
  if (place < 0 && !names.isEmpty()) label_ = names.first().toStdString();
  labels_->setCurrentIndex(std::max(place, 0));
}

void CurvesWindow::UpdateEntries() {
  const bool hasPages = !visit_.OnPages().empty();
  for (QAction* action : needPages_) action->setEnabled(hasPages);
  (Curves() == plot::Shown::Strides ? strides_ : means_)->setChecked(true);
  const auto& lifted = view_->Lifted();
  leaveOut_->setEnabled(lifted.has_value());
  leaveOut_->setText(
      lifted ? tr("&Leave Out %1")
                   .arg(ToQString(StrideText(view_->Set(), *lifted)).replace(u'&', u"&&"_qs))
             : tr("&Leave Out Stride"));
  labels_->setEnabled(Kind() == PageKind::Label && labels_->count() > 0);
}

void CurvesWindow::Say(const QString& text) {
  pointed_->setText(text);
  pointed_->setToolTip(WrappedToolTip(text));
}

void CurvesWindow::LeaveOutLifted() {
  if (!view_->Lifted()) return;
  const pages::StrideId stride = *view_->Lifted();
  const QString text = ToQString(StrideText(view_->Set(), stride));
  visit_.SetLeftOut(visit_.TrialOf(stride), {stride.Side, stride.Stride}, true);
  UpdateAll();
  Say(tr("%1 is left out.").arg(text));
}

void CurvesWindow::ShowAllStrides() {
  visit_.ShowAllStrides();
  UpdateAll();
}

void CurvesWindow::Remember() { memory_.SetGeometry(saveGeometry(), split_->saveState()); }

}  // namespace app
