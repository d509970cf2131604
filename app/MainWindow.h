// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <QMainWindow>

#include "app/MenuRows.h"
#include "app/Remembered.h"
#include "app/TrialFolder.h"
#include "c3d/FileState.h"
#include "gait/SubjectFileEdit.h"
#include "pages/PageKinds.h"

class QAction;
class QMenu;

namespace app {

class CurvesWindow;
class frmVantrel;
class ManualWindow;
class NeighbourSearch;
class TrialStatus;

// The program's window: the form as its client area, and the menus above it. Its title is the
// form's, it takes dropped files for the form, and closing it unloads the form. It stands where it
// stood last, and remembers what else its user has chosen.
class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // `state` is the one open file; it must outlive the window.
  explicit MainWindow(modVantrel::FileState& state);
  ~MainWindow() override;

  // Loads the form with the command line of the program. Called once, before the window is shown;
  // an error in the open leaves the form unloaded.
  void Load(const std::string& commandLine);

  frmVantrel& Form() { return *form_; }
  // Whether the checkup of the open trial is still to come.
  bool IsChecking() const;
  // Whether the trials beside the open one are still looked for.
  bool IsLookingAround() const;

  // The window of curves; null as long as nobody has asked for a page.
  CurvesWindow* Curves() { return curves_.get(); }
  // The file of normal values that curves are compared with; empty for none.
  std::string Normals() const { return remembered_.Normals(); }

  // What the menus run; MenuRows says which entry runs which.
  void OpenNextTrial();
  void OpenPreviousTrial();
  void SaveReportAs();
  void ExportTable();
  void PrintReport();
  void ChooseNormals();
  void ForgetNormals();
  void ToggleFurtherLabels();
  void ToggleAnatomicalAxes();
  void EditSubject();
  void ShowManual();
  void ShowKeys();
  void ShowAbout();

 signals:
  // The user asks for that page of curves; a file is open.
  void CurvesAsked(pages::PageKind page);
  // Another file of normals was chosen, or none.
  void NormalsChanged();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void FillMenus();
  void AddReports();
  void AddCurves();
  QMenu* Menu(MenuName menu);
  QAction* ActionOf(const MenuRow& row);
  bool Has(MenuNeeds needed) const;
  void ShowCurves(pages::PageKind page);
  void FollowWithCurves();
  void CloseCurves();
  void CompareCurves();
  // Enables what can be done now.
  void EnableActions();

  // Sets the check marks of the menus to what is so.
  void ShowMarks();
  void ShowStatus();
  void TakeOverTrialChoices();
  // Writes what was entered of the subject into the folder's file, where the user wants that.
  void OfferToKeep(const std::vector<modVantrel::SubjectEntry>& entries);

  void FillRecentFiles();
  void FileWasOpened();
  // Looks for the trials beside the one that was asked for, beside the window.
  void LookAround();
  void TakeNeighbours(const Neighbours& neighbours);
  // The same at once, for who waits for one of them anyway.
  Neighbours NeighboursNow();
  void RememberState();
  // A path without an ending for what is saved of the open trial.
  QString ProposedName(std::string_view what) const;

  const modVantrel::FileState& state_;
  Remembered remembered_;
  frmVantrel* form_;
  std::unique_ptr<CurvesWindow> curves_;
  QMenu* recent_;
  Neighbours neighbours_;
  NeighbourSearch* search_;
  TrialStatus* status_;
  std::unique_ptr<ManualWindow> manual_;  // once it was asked for
};

}  // namespace app
