// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>

#include <QMainWindow>

#include "app/MenuRows.h"
#include "c3d/FileState.h"
#include "pages/PageKinds.h"

class QAction;
class QMenu;

namespace app {

class CurvesWindow;
class frmVantrel;

// The program's window: the form as its client area, and the menus above it. Its title is the
// form's, it takes dropped files for the form, and closing it unloads the form.
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

  // The window of curves; null as long as nobody has asked for a page.
  CurvesWindow* Curves() { return curves_.get(); }

 signals:
  // The user asks for that page of curves; a file is open.
  void CurvesAsked(pages::PageKind page);

 protected:
  void closeEvent(QCloseEvent* event) override;

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
  // Enables what can be done now.
  void EnableActions();

  frmVantrel* form_;
  std::unique_ptr<CurvesWindow> curves_;
};

}  // namespace app
