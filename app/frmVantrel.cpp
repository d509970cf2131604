// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/frmVantrel.h"

#include <new>
#include <utility>

#include <QCloseEvent>
#include <QLineEdit>
#include <QPushButton>

#include "app/CaptionButton.h"
#include "app/CommandLine.h"
#include "app/CursorOverride.h"
#include "app/DesktopFolder.h"
#include "app/FindBar.h"
#include "app/FormColumn.h"
#include "app/FormReader.h"
#include "app/MessageBoxes.h"
#include "app/NodeTree.h"
#include "app/OpenFileDialog.h"
#include "app/OutputPane.h"
#include "app/QtText.h"
#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"
#include "reports/NavigationTree.h"

namespace app {

using modAllPurpose::RuntimeError;
using modVantrel::OpenResult;

frmVantrel::frmVantrel(modVantrel::FileState& state)
    : state_(state), controls_(LayOutForm(*this)), findBar_(new FindBar(controls_.txt)) {
  FormReader::Install();
  setObjectName(QStringLiteral("frmVantrel"));
  setWindowTitle(QStringLiteral("Vantrel"));
  // Not within the painting that tells of it.
  connect(
      this, &frmVantrel::Framed, this,
      [this] {
        if (place_) place_->FitFrame();
      },
      Qt::QueuedConnection);
  ConnectControls();
  AddActions();
  AcceptDrops();
}

void frmVantrel::Form_Load(const std::string& commandLine,
                           const std::optional<KnownPlace>& knownPlace) {
  design_ = DesignSizes{size(), controls_.txt->size(), controls_.tre->height()};
  place_.emplace(*window(), *this);
  place_->Open(knownPlace);
  DesktopOutputPath_ = GetDesktopFolder() + "Vantrel_Output.txt";
  controls_.tre->clear();
  controls_.tre->setRootIsDecorated(true);
  if (commandLine.empty()) return;
  Run([&] { OpenFile(FileNameOnCommandLine(commandLine)); });
}

void frmVantrel::Run(const std::function<void()>& handler) {
  try {
    handler();
  } catch (const RuntimeError& error) {
    EndWithError(error);
  } catch (const std::bad_alloc&) {
    EndWithError(RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory));
  }
}

void frmVantrel::RunCommand(const std::function<void()>& command) {
  gate_.Run([&] {
    Run(command);
    return !IsUnloaded();
  });
}

void frmVantrel::EndWithError(const RuntimeError& error) {
  ShowRuntimeError(this, error);
  Unload(1);
}

void frmVantrel::Unload(int exitStatus) {
  if (IsUnloaded()) return;
  exitStatus_ = exitStatus;
  window()->close();
}

void frmVantrel::closeEvent(QCloseEvent* event) {
  Form_Unload();
  event->accept();
}

void frmVantrel::Form_Unload() {
  modVantrel::CloseC3dFile(state_);
  fileOpen_ = false;
  // An error may have left the desktop copy open; what it holds so far is kept.
  modAllPurpose::IgnoringErrors([this] { desktopCopy_.Close(); });
  if (!exitStatus_) exitStatus_ = 0;
  emit Unloaded(*exitStatus_);
}

bool frmVantrel::event(QEvent* event) {
  // Framed it is when it is painted for the first time.
  if (event->type() == QEvent::Paint && !std::exchange(wasPainted_, true)) {
    emit Framed();
  }
  return QWidget::event(event);
}

void frmVantrel::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Form_Resize();
}

void frmVantrel::Form_Resize() {
  if (!design_) return;
  // A size below nothing cannot be set: that step is left out and the others are made.
  const auto setWidth = [](QWidget& control, int width) {
    if (width >= 0) control.resize(width, control.height());
  };
  const auto setHeight = [](QWidget& control, int height) {
    if (height >= 0) control.resize(control.width(), height);
  };
  setWidth(*controls_.txt, width() - design_->Form.width() + design_->Pane.width());
  setHeight(*controls_.txt, height() - design_->Form.height() + design_->Pane.height());
  setHeight(*controls_.tre, height() - design_->Form.height() + design_->TreeHeight);
  controls_.Column->FitInto(size(), controls_.tre->geometry().bottom() + 1 + kFormMargin);
}

bool frmVantrel::EnsureFileOpen() {
  if (!fileOpen_) ShowMessage(this, "A C3D file is not open.  You must open one first.");
  return fileOpen_;
}

void frmVantrel::cmdOpen_Click() {
  using namespace std::string_view_literals;
  const std::string folder =
      fileOpen_ ? modApiCommonDialog::ResultForChosenFile(DialogFileSpec_).DialogFolder
                : dialogFolder_;
  const modApiCommonDialog::DialogResult chosen = modApiCommonDialog::ShowOpenFileDialog(
      this, "C3D Files (*.c3d)\0*.c3d\0"sv, folder, QStringLiteral("Vantrel"),
      modApiCommonDialog::kHideReadOnly | modApiCommonDialog::kPathMustExist |
          modApiCommonDialog::kFileMustExist,
      tr("Ends the program"));
  if (chosen.DialogOk) {
    OpenFile(chosen.DialogFileSpec);
  } else {
    Unload(0);
  }
}

void frmVantrel::cmdExit_Click() { Unload(0); }

void frmVantrel::OpenFile(const std::string& fileSpec) {
  DialogFileSpec_ = fileSpec;
  OpenAndFillTree();
}

void frmVantrel::Reload() {
  QStringList texts;
  for (const QLineEdit* box : Boxes()) texts << box->text();
  OpenFile(DialogFileSpec_);
  if (!fileOpen_) return;
  for (QLineEdit* box : Boxes()) box->setText(texts.takeFirst());
}

std::array<QLineEdit*, 4> frmVantrel::Boxes() const {
  return {controls_.txtGroup, controls_.txtParam, controls_.txtPointLabel,
          controls_.txtAnalogLabel};
}

void frmVantrel::OpenAndFillTree() {
  modVantrel::CloseC3dFile(state_);
  fileOpen_ = false;
  PaneShows({});
  controls_.txt->Empty();
  controls_.tre->clear();
  for (QLineEdit* box : Boxes()) box->clear();
  const OpenResult result = [this] {
    const CursorOverride wait(Qt::WaitCursor);
    return modVantrel::OpenC3dFile(state_, DialogFileSpec_, modVantrel::FindGaitEvents);
  }();
  if (result != OpenResult::Success) {
    emit OpenFileChanged();
    ShowMessage(this, modVantrel::OpenFailureMessage(result));
    return;
  }
  // "[*]" is the toolkit's mark for unsaved changes; doubled it shows as it stands.
  setWindowTitle(
      ToQString(DialogFileSpec_).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]")));
  fileOpen_ = true;
  FillTree();
  emit OpenFileChanged();
}

void frmVantrel::FillTree() {
  const CursorOverride wait(Qt::WaitCursor);
  controls_.tre->Fill(reports::FillTree(state_));
}

void frmVantrel::tre_NodeClick(const QTreeWidgetItem* node) const {
  const QString text = node->text(0);
  switch (NodeDepth(node)) {
    case 0:
      controls_.txtGroup->setText(text);
      controls_.txtParam->clear();
      break;
    case 1:
      controls_.txtGroup->setText(node->parent()->text(0));
      controls_.txtParam->setText(text);
      break;
    default:
      // The names are compared letter by letter, though the tree was filled without regard to case.
      if (node->parent()->parent()->text(0) == QStringLiteral("POINT")) {
        controls_.txtPointLabel->setText(text);
      } else if (node->parent()->parent()->text(0) == QStringLiteral("ANALOG")) {
        controls_.txtAnalogLabel->setText(text);
      }
  }
}

void frmVantrel::tre_DblClick(const QTreeWidgetItem* node) {
  tre_NodeClick(node);
  switch (NodeDepth(node)) {
    case 0:
      cmdShowMatchingGroupAndAllParams_Click();
      break;
    case 1:
      cmdShowMatchingGroupAndMatchingParam_Click();
      break;
    default:
      if (node->parent()->parent()->text(0) == QStringLiteral("POINT")) {
        cmdShowPointData_Click();
      } else if (node->parent()->parent()->text(0) == QStringLiteral("ANALOG")) {
        cmdShowAnalogData_Click();
      }
  }
}

}  // namespace app
