// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QMainWindow>

#include "app/Background.h"
#include "app/CurvesMemory.h"
#include "app/PageView.h"
#include "app/Visit.h"
#include "app/VisitList.h"
#include "pages/PageKinds.h"
#include "plot/PageFiles.h"
#include "visit/Normals.h"

class QAction;
class QActionGroup;
class QComboBox;
class QLabel;
class QMenu;
class QPrinter;
class QProgressBar;
class QSplitter;
class QTabBar;
class QToolButton;

namespace app {

// The pages of a visit: at the left its trials, at the right a page of their curves. It stands
// beside the program's window and reads its files by itself, off its own thread.
class CurvesWindow : public QMainWindow {
  Q_OBJECT

 public:
  CurvesWindow();
  ~CurvesWindow() override;

  // The form's trial has become that of `path`; empty for none. It is read once the window shows.
  void Follow(const std::string& path);
  // The form has opened that file, maybe once more: what was read of the same one before is read
  // anew.
  void FollowOpened(const std::string& path);
  // Adds trials behind the others; those that are there already count once.
  void AddTrials(const std::vector<std::string>& paths);

  // Compares with the normals of that file; empty for none. Says why where it holds none.
  void SetNormals(const std::string& path);

  // Brings the window to the front with that page.
  void ShowPage(pages::PageKind kind);

  // Writes the pages whole or not at all; an existing file is replaced after asking.
  void SavePages(const std::string& file, const std::vector<pages::PageKind>& kinds);
  // Draws the page that is seen, or all of them, on the printer's paper.
  void PrintPages(QPrinter& printer, const std::vector<pages::PageKind>& kinds);
  // Writes the table of one of kVisitTables, its form by the ending of the name.
  void ExportTable(std::string_view report, const std::string& file);

  const Visit& TrialsOfVisit() const { return visit_; }
  PageView& View() { return *view_; }
  bool IsBusy() const { return background_->IsBusy() || writing_->IsBusy(); }

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  using Handler = void (CurvesWindow::*)();
  struct MenuEntry;

  // What stands in the window.
  void LayOut();
  QWidget* NewRightSide();
  void AddStatus();
  void AddMenus();
  void AddVisitMenu();
  void AddPageMenu();
  void AddToolBar();
  QAction* AddEntry(QMenu* menu, const MenuEntry& entry) const;
  QAction* AddCheck(QMenu* menu, const MenuEntry& entry, bool isChecked);
  void ConnectParts();
  void OpenAtItsPlace();
  void Remember();

  // What its menus do.
  void ChooseTrials();
  void RemoveSelected();
  void RemoveTrial(std::size_t trial);
  void ReadAgain();
  void EndReading();
  void SaveThisPage();
  void SaveAllPages();
  void Print();
  void PreviewPrint();
  void CopyPicture();
  void LeaveOutLifted();
  void ShowAllStrides();
  void NextPage() { TurnPage(1); }
  void PreviousPage() { TurnPage(-1); }
  void PutPanelsBack() { view_->PutPanelsBack(); }
  void PutStrideBack() { view_->Lift(std::nullopt); }
  void DrawStrides() { ChooseCurves(plot::Shown::Strides); }
  void DrawMeans() { ChooseCurves(plot::Shown::Means); }
  void ChooseStyle();

  void ChooseCurves(plot::Shown curves);
  void TurnPage(int by);
  void ChooseLabel(const QString& label);
  void ChooseExport(std::string_view report);

  // How it follows what is read.
  void ReadWhatIsNew();
  void ReadNewestFirst();
  void Check(const std::string& path);
  void ReadLabels();
  void Cancel();
  void UpdateAll();
  void UpdateLabels();
  void UpdatePage();
  void UpdateEntries();
  void ShowProgress();
  void Say(const QString& text);

  pages::PageKind Kind() const;
  pages::PageChoice Choice(const std::vector<pages::PageKind>& kinds) const;
  std::vector<pages::PageKind> AllKinds() const;
  plot::Shown Curves() const;
  plot::DrawingStyle PaperStyle() const;
  plot::SheetKind Sheet() const;
  QString Hint() const;
  bool MayReplace(const std::string& file);
  std::string AskForFile(const QString& title, const QString& name, const QStringList& filters);
  void WriteOrTell(const std::vector<modAllPurpose::WholeFile>& files);

  Visit visit_;
  CurvesMemory memory_;
  visit::Normals normals_;
  std::set<std::string> underWay_;
  std::set<std::string> beingChecked_;
  std::optional<plot::Shown> chosen_;
  std::string label_;
  std::size_t labelPage_ = 0;

  QSplitter* split_ = nullptr;
  VisitList* list_ = nullptr;
  QTabBar* tabs_ = nullptr;
  QComboBox* labels_ = nullptr;
  PageView* view_ = nullptr;
  QLabel* pointed_ = nullptr;
  QProgressBar* progress_ = nullptr;
  QToolButton* cancel_ = nullptr;
  QTimer* progressTimer_ = nullptr;
  QAction* strides_ = nullptr;
  QAction* means_ = nullptr;
  QAction* monochrome_ = nullptr;
  QAction* landscape_ = nullptr;
  std::vector<QAction*> needPages_;
  QAction* leaveOut_ = nullptr;
  Background* writing_;     // of files, which a new reading does not end
  Background* background_;  // the last one to be made: its work ends first
};

}  // namespace app
