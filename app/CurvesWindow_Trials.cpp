// SPDX-License-Identifier: GPL-3.0-or-later

// How trials come into the curves window and what is read of them.

#include <algorithm>
#include <memory>
#include <variant>

#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QMimeData>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>

#include "app/CurvesWindow.h"
#include "app/DraggedFiles.h"
#include "app/MessageBoxes.h"
#include "app/QtText.h"
#include "app/ScreenRoom.h"
#include "reports/CheckReport.h"
#include "support/FileSystem.h"
#include "visit/NormalFile.h"

namespace app {

namespace {

constexpr int kUntilProgress = 200;  // milliseconds

}  // namespace

void CurvesWindow::Follow(const std::string& path) {
  if (visit_.Follow(path)) ReadNewestFirst();
}

void CurvesWindow::FollowOpened(const std::string& path) {
  const auto& trials = visit_.Trials();
  if (trials.empty() || !trials.front().IsTheForms || trials.front().Path != path) {
    Follow(path);
    return;
  }
  visit_.Forget(path);
  ReadNewestFirst();
}

// Whoever goes on to another trial waits for that one: a reading of one that is gone ends, and what
// the others still lack is read behind it.
void CurvesWindow::ReadNewestFirst() {
  if (background_->IsBusy()) {
    EndReading();
    visit_.GiveUp({}, {});
  }
  ReadWhatIsNew();
  UpdateAll();
  ReadLabels();
}

void CurvesWindow::AddTrials(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) visit_.Add(path);
  ReadWhatIsNew();
  UpdateAll();
}

void CurvesWindow::ChooseTrials() {
  QFileDialog dialog(this, tr("Add Trials"));
  dialog.setOption(QFileDialog::HideNameFilterDetails);
  dialog.setNameFilter(tr("C3D Files (*.c3d *.C3D)"));
  dialog.setFileMode(QFileDialog::ExistingFiles);
  OpenWithinScreen(dialog);
  if (!visit_.Trials().empty()) {
    dialog.setDirectory(ToQString(modAllPurpose::FolderOf(visit_.Trials().front().Path)));
  }
  if (dialog.exec() != QDialog::Accepted) return;
  std::vector<std::string> paths;
  for (const QString& path : dialog.selectedFiles()) {
    paths.push_back(PathFrom(path));
  }
  AddTrials(paths);
}

void CurvesWindow::RemoveSelected() {
  if (const auto trial = list_->SelectedTrial()) RemoveTrial(*trial);
}

void CurvesWindow::RemoveTrial(std::size_t trial) {
  underWay_.erase(visit_.Trials().at(trial).Path);
  visit_.Remove(trial);
  UpdateAll();
}

void CurvesWindow::ReadAgain() {
  EndReading();
  visit_.Forget();
  ReadWhatIsNew();
  UpdateAll();
}

void CurvesWindow::EndReading() {
  background_->Cancel();
  underWay_.clear();
  beingChecked_.clear();
}

void CurvesWindow::ReadWhatIsNew() {
  if (!isVisible()) return;
  for (const VisitTrial& trial : visit_.Trials()) {
    if (trial.Values && !trial.IsChecked) Check(trial.Path);
    if (trial.Values || !trial.Failure.empty() || !underWay_.insert(trial.Path).second) continue;
    background_->Run([this, path = trial.Path, label = label_]() -> Background::Then {
      auto read = std::make_shared<ReadTrial>(ReadTrialForPages(path, label));
      return [this, path, label, read] {
        if (underWay_.erase(path) == 0) return;
        visit_.Take(path, label, std::move(*read));
        Check(path);
        UpdateAll();
        ReadLabels();
      };
    });
  }
}

void CurvesWindow::Check(const std::string& path) {
  if (!beingChecked_.insert(path).second) return;
  background_->Run([this, path]() -> Background::Then {
    auto findings = std::make_shared<std::vector<modVantrel::Finding>>(reports::CheckFile(path));
    return [this, path, findings] {
      beingChecked_.erase(path);
      VisitTrial* trial = visit_.Find(path);
      if (trial == nullptr) return;
      trial->Findings = std::move(*findings);
      trial->IsChecked = true;
      list_->Show(visit_);
    };
  });
}

void CurvesWindow::ChooseLabel(const QString& label) {
  label_ = label.toStdString();
  labelPage_ = 0;
  ReadLabels();
  UpdatePage();
}

// Has the label that is chosen for the trials on the pages, where they are to show it.
void CurvesWindow::ReadLabels() {
  if (!isVisible() || Kind() != pages::PageKind::Label || label_.empty()) return;
  for (const std::string& path : visit_.AskFor(label_)) {
    background_->Run([this, path, label = label_]() -> Background::Then {
      auto read = std::make_shared<ReadLabel>(ReadLabelOverTime(path, label));
      return [this, path, label, read] {
        visit_.Take(path, label, std::move(*read));
        list_->Show(visit_);
        UpdatePage();
      };
    });
  }
}

void CurvesWindow::Cancel() {
  if (writing_->IsBusy()) {
    writing_->Cancel();
    Say(tr("Nothing was written."));
  }
  visit_.GiveUp(underWay_, tr("Reading was cancelled.").toStdString());
  EndReading();
  UpdateAll();
}

void CurvesWindow::ShowProgress() {
  const bool isBusy = IsBusy();
  const bool isFirst = isBusy && !progressTimer_->isActive() && !progress_->isVisible();
  if (isFirst && sender() != progressTimer_) {
    progressTimer_->start(kUntilProgress);
    return;
  }
  if (!isBusy) progressTimer_->stop();
  if (progressTimer_->isActive()) return;
  progress_->setRange(0, static_cast<int>(background_->Started() + writing_->Started()));
  progress_->setValue(static_cast<int>(background_->Done() + writing_->Done()));
  progress_->setVisible(isBusy);
  cancel_->setVisible(isBusy);
}

void CurvesWindow::SetNormals(const std::string& path) {
  normals_ = {};
  if (!path.empty()) {
    auto read = visit::ReadNormalFile(path);
    if (const auto* failure = std::get_if<std::string>(&read)) {
      ShowMessage(this, *failure);
    } else {
      normals_ = std::get<visit::Normals>(std::move(read));
    }
  }
  UpdatePage();
}

void CurvesWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DraggedFiles(event->mimeData()).empty()) AcceptCopy(event);
}

void CurvesWindow::dropEvent(QDropEvent* event) {
  const std::vector<std::string> files = DraggedFiles(event->mimeData());
  if (!files.empty() && AcceptCopy(event)) AddTrials(files);
}

}  // namespace app
