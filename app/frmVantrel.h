// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QWidget>

#include "app/CommandGate.h"
#include "app/DesktopCopy.h"
#include "app/FormLayout.h"
#include "app/FormReport.h"
#include "app/ShownReport.h"
#include "app/WindowPlace.h"
#include "c3d/FileState.h"
#include "gait/GcdText.h"
#include "gait/SubjectRecord.h"
#include "support/ReportOutput.h"
#include "support/RuntimeError.h"

class QLineEdit;
class QTreeWidgetItem;

namespace app {

class FindBar;
struct MenuRow;

// The form of the program: the client area of its window, or a window by itself. Its handlers carry
// the names of their controls.
//
// A run-time error in any handler shows what the report had written, then a message box, and ends
// the program with exit status 1.
class frmVantrel : public QWidget {
  Q_OBJECT

 public:
  // `state` is the one open file; it must outlive the form.
  explicit frmVantrel(modVantrel::FileState& state);

  // Takes down the design sizes, places the window (where it stood last, if that is known), finds
  // the desktop, and opens the file that `commandLine` names, where it names one. Called once,
  // before the form is shown.
  void Form_Load(const std::string& commandLine, const std::optional<KnownPlace>& knownPlace = {});

  // Whether the form was unloaded, which ends the program, and with what exit status.
  bool IsUnloaded() const { return exitStatus_.has_value(); }
  int ExitStatus() const { return exitStatus_.value_or(0); }

  // The path that was to be opened last, whether or not it could be; empty for none.
  const std::string& AskedFileSpec() const { return DialogFileSpec_; }

  // The path of the open file; empty where none is open.
  std::string OpenFileSpec() const { return fileOpen_ ? DialogFileSpec_ : std::string(); }

  // Opens that file in place of the one that is open; a file that cannot be opened is told and
  // leaves none open. Errors as OpenC3dFile.
  void OpenFile(const std::string& fileSpec);

  // Where the open dialog starts as long as no file is open; empty: in the folder visited last.
  void StartDialogIn(const std::string& folder) { dialogFolder_ = folder; }

  // Opens the open file once more, and keeps what stands in the four text boxes.
  void Reload();

  // The report that the pane shows; none where the pane is empty, shows a refusal or what was
  // written before an error.
  const std::optional<ShownReport>& Shown() const { return shown_; }
  OutputPane& Pane() const { return *controls_.txt; }
  CaptionCheckBox& DesktopCheckBox() const { return *controls_.chkOut; }

  // What the menu of the trial sets for the reports to come: whether they find the labels beyond
  // the 255th, by which axes GCD files are written, and what was entered of the subject of the open
  // trial. Labels that cannot be read are told and left out.
  void SetFurtherLabels(bool known);
  bool FurtherLabels() const { return furtherLabels_; }
  void SetGcdAxes(modVantrel::GcdAxes axes) { gcdAxes_ = axes; }
  modVantrel::GcdAxes Axes() const { return gcdAxes_; }
  void SetSubject(const modVantrel::SubjectOptions& entered);
  modVantrel::SubjectOptions EnteredSubject() const;

  StatusLine& Status() const { return *controls_.Status; }

  // Runs a command as a press of a button does: not while another one runs, and a run-time error
  // ends the program.
  void RunCommand(const std::function<void()>& command);

  // What the menu of editing runs: copies are of what is selected in the text box that has the
  // focus, else in the pane, as a table of the pane alone.
  void Copy();
  void CopyAsTable();
  void Find();
  void FindNext();
  void FindPrevious();
  void ZoomIn();
  void ZoomOut();
  void ZoomReset();

  // What the buttons run; FormRows says which button runs which.
  void cmdOpen_Click();
  void cmdExit_Click();
  void cmdShowHeaderInfo_Click();
  void cmdShowParameterHeader_Click();
  void cmdShowAllGroups_Click();
  void cmdShowAllGroupsAndAllParams_Click();
  void cmdShowMatchingGroupAndAllParams_Click();
  void cmdShowMatchingGroupAndMatchingParam_Click();
  void cmdShowPointLabels_Click();
  void cmdShowPointData_Click();
  void cmdShowPointDataWithEvents_Click();
  void cmdShowAnalogData_Click();
  void cmdShowAnalogDataWithEvents_Click();
  void cmdShowStrikeOffEvents_Click();
  void cmdShowSingleValueStrikeOffMeasures_Click();
  void cmdShowNormalized_Click();
  void cmdWriteGcdFiles_Click();

  // The reports that have an entry in the menus and no button.
  void ShowCheckup();
  void ShowStrides();
  void ShowSummary();

 signals:
  // The form was closed, for good: the program ends with that status.
  void Unloaded(int exitStatus);
  // It is shown in the frame of the window system.
  void Framed();
  // A file was opened, or could not be opened and none is open now.
  void OpenFileChanged();
  // The pane shows another report, or none.
  void ReportChanged();
  // What the user must know of the GCD files that were written, in a sentence.
  void Remarked(const QString& sentence);
  // The drop of these files, one at least, is over for the program that they come from.
  void FilesDropped(const std::vector<std::string>& files);

 protected:
  bool event(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  using Report = std::function<modAllPurpose::ReportResult(modAllPurpose::ReportOutput&)>;

  // The sizes of the layout as it is drawn.
  struct DesignSizes {
    QSize Form;
    QSize Pane;
    int TreeHeight;
  };

  void ConnectControls();
  void AddActions();
  void AddAction(const MenuRow& row);
  void AcceptDrops();
  void Run(const std::function<void()>& handler);
  void EndWithError(const modAllPurpose::RuntimeError& error);
  void Unload(int exitStatus);

  void Form_Resize();
  void Form_Unload();

  std::array<QLineEdit*, 4> Boxes() const;
  bool EnsureFileOpen();
  void OpenAndFillTree();
  void FillTree();
  void AddFurtherLabels();
  void ProposeInBoxes();
  void OpenDroppedFiles(const std::vector<std::string>& files);

  void tre_NodeClick(const QTreeWidgetItem* node) const;
  void tre_DblClick(const QTreeWidgetItem* node);

  // What every report command does around its report.
  void ShowReport(ShownReport what, const Report& report);
  void ShowPlainReport(std::string_view name,
                       void (*report)(const modVantrel::FileState&, modAllPurpose::ReportOutput&));
  void ShowLabelReport(std::string_view name,
                       modAllPurpose::ReportResult (*report)(const modVantrel::FileState&,
                                                             std::string_view,
                                                             modAllPurpose::ReportOutput&),
                       const QLineEdit* labelBox);
  void PaneShows(std::optional<ShownReport> report);
  FormReport NewReport(CopyToDesktop copyToDesktop);

  modVantrel::FileState& state_;
  FormControls controls_;
  FindBar* findBar_;
  CommandGate gate_;
  DesktopCopy desktopCopy_;
  std::string DesktopOutputPath_;
  std::string DialogFileSpec_;
  std::string dialogFolder_;
  std::optional<ShownReport> shown_;
  bool fileOpen_ = false;
  bool furtherLabels_ = false;
  modVantrel::GcdAxes gcdAxes_ = modVantrel::GcdAxes::Walk;
  std::map<std::string, modVantrel::SubjectOptions> subjects_;  // by the paths of their trials
  bool wasPainted_ = false;
  std::optional<WindowPlace> place_;
  std::optional<DesignSizes> design_;
  std::optional<int> exitStatus_;
};

}  // namespace app
