// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MenuRows.h"

#include <QAction>
#include <QString>

#include "app/FormLayout.h"
#include "app/MainWindow.h"
#include "app/frmVantrel.h"

namespace app {

namespace {

using enum MenuName;

constexpr MenuTurn kAtOnce = MenuTurn::AtOnce;
constexpr bool kNewGroup = true;

constexpr std::array kMenuRows = {
    MenuRow{.Menu = File,
            .Name = "mnuOpen",
            .Caption = u"&Open\u2026",
            .Keys = {Qt::CTRL | Qt::Key_O},
            .Run = &frmVantrel::cmdOpen_Click},
    MenuRow{.Menu = File,
            .Name = "mnuRecent",
            .Caption = u"Open Re&cent",
            .Needs = MenuNeeds::RecentFiles},
    MenuRow{.Menu = File,
            .Name = "mnuNextTrial",
            .Caption = u"&Next Trial of the Folder",
            .Keys = {Qt::CTRL | Qt::Key_PageDown},
            .Run = &MainWindow::OpenNextTrial,
            .Needs = MenuNeeds::NextTrial,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = File,
            .Name = "mnuPreviousTrial",
            .Caption = u"&Previous Trial of the Folder",
            .Keys = {Qt::CTRL | Qt::Key_PageUp},
            .Run = &MainWindow::OpenPreviousTrial,
            .Needs = MenuNeeds::PreviousTrial},
    MenuRow{.Menu = File,
            .Name = "mnuReload",
            .Caption = u"&Reload",
            .Keys = {Qt::Key_F5},
            .Run = &frmVantrel::Reload,
            .Needs = MenuNeeds::OpenFile},
    MenuRow{.Menu = File,
            .Name = "mnuSaveReport",
            .Caption = u"&Save Report As\u2026",
            .Keys = {Qt::CTRL | Qt::Key_S},
            .Run = &MainWindow::SaveReportAs,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = File,
            .Name = "mnuExportTable",
            .Caption = u"&Export Table\u2026",
            .Keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_E},
            .Run = &MainWindow::ExportTable,
            .Needs = MenuNeeds::Table},
    MenuRow{.Menu = File,
            .Name = "mnuPrint",
            .Caption = u"Prin&t\u2026",
            .Keys = {Qt::CTRL | Qt::Key_P},
            .Run = &MainWindow::PrintReport},
    MenuRow{.Menu = File,
            .Name = "mnuQuit",
            .Caption = u"&Quit",
            .Keys = {Qt::CTRL | Qt::Key_Q},
            .Run = &frmVantrel::cmdExit_Click,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Edit,
            .Name = "mnuCopy",
            .Caption = u"&Copy",
            .Keys = {Qt::CTRL | Qt::Key_C},
            .Run = &frmVantrel::Copy,
            .Turn = kAtOnce},
    MenuRow{.Menu = Edit,
            .Name = "mnuCopyAsTable",
            .Caption = u"Copy as &Table",
            .Keys = {Qt::CTRL | Qt::SHIFT | Qt::Key_C},
            .Run = &frmVantrel::CopyAsTable,
            .Turn = kAtOnce},
    MenuRow{.Menu = Edit,
            .Name = "mnuFind",
            .Caption = u"&Find\u2026",
            .Keys = {Qt::CTRL | Qt::Key_F},
            .Run = &frmVantrel::Find,
            .Turn = kAtOnce,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Edit,
            .Name = "mnuFindNext",
            .Caption = u"Find &Next",
            .Keys = {Qt::Key_F3},
            .Run = &frmVantrel::FindNext,
            .Turn = kAtOnce},
    MenuRow{.Menu = Edit,
            .Name = "mnuFindPrevious",
            .Caption = u"Find &Previous",
            .Keys = {Qt::SHIFT | Qt::Key_F3},
            .Run = &frmVantrel::FindPrevious,
            .Turn = kAtOnce},
    MenuRow{.Menu = Edit,
            .Name = "mnuZoomIn",
            .Caption = u"Zoom &In",
            .Keys = {Qt::CTRL | Qt::Key_Plus, Qt::CTRL | Qt::Key_Equal},
            .Run = &frmVantrel::ZoomIn,
            .Turn = kAtOnce,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Edit,
            .Name = "mnuZoomOut",
            .Caption = u"Zoom &Out",
            .Keys = {Qt::CTRL | Qt::Key_Minus},
            .Run = &frmVantrel::ZoomOut,
            .Turn = kAtOnce},
    MenuRow{.Menu = Edit,
            .Name = "mnuZoomReset",
            .Caption = u"&Reset Zoom",
            .Keys = {Qt::CTRL | Qt::Key_0},
            .Run = &frmVantrel::ZoomReset,
            .Turn = kAtOnce},
    MenuRow{.Menu = Reports,
            .Name = "mnuCheckup",
            .Caption = u"&Checkup",
            .Keys = {Qt::Key_F7},
            .Run = &frmVantrel::ShowCheckup,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Reports,
            .Name = "mnuStrides",
            .Caption = u"S&trides",
            .Keys = {Qt::Key_F8},
            .Run = &frmVantrel::ShowStrides},
    MenuRow{.Menu = Reports,
            .Name = "mnuSummary",
            .Caption = u"S&ummary",
            .Keys = {Qt::Key_F9},
            .Run = &frmVantrel::ShowSummary},
    MenuRow{.Menu = Curves,
            .Name = "mnuChooseNormals",
            .Caption = u"Normals: &Choose File\u2026",
            .Run = &MainWindow::ChooseNormals,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Curves,
            .Name = "mnuNoNormals",
            .Caption = u"Normals: &None",
            .Run = &MainWindow::ForgetNormals,
            .Needs = MenuNeeds::Normals},
    MenuRow{.Menu = Trial,
            .Name = "mnuFurtherLabels",
            .Caption = u"&Further Labels",
            .Run = &MainWindow::ToggleFurtherLabels,
            .Checkable = true},
    MenuRow{.Menu = Trial,
            .Name = "mnuAnatomicalAxes",
            .Caption = u"&Angles by Anatomical Axes",
            .Run = &MainWindow::ToggleAnatomicalAxes,
            .Checkable = true},
    MenuRow{.Menu = Trial,
            .Name = "mnuSubject",
            .Caption = u"&Subject\u2026",
            .Run = &MainWindow::EditSubject,
            .Needs = MenuNeeds::OpenFile,
            .StartsGroup = kNewGroup},
    MenuRow{.Menu = Help,
            .Name = "mnuManual",
            .Caption = u"&Manual",
            .Keys = {Qt::Key_F1},
            .Run = &MainWindow::ShowManual},
    MenuRow{.Menu = Help, .Name = "mnuKeys", .Caption = u"&Keys", .Run = &MainWindow::ShowKeys},
    MenuRow{.Menu = Help,
            .Name = "mnuAbout",
            .Caption = u"&About Vantrel",
            .Run = &MainWindow::ShowAbout,
            .StartsGroup = kNewGroup},
};

}  // namespace

QString CaptionOf(MenuName menu) {
  switch (menu) {
    case File:
      return MainWindow::tr("&File");
    case Edit:
      return MainWindow::tr("&Edit");
    case Reports:
      return MainWindow::tr("&Reports");
    case Curves:
      return MainWindow::tr("&Curves");
    case Trial:
      return MainWindow::tr("&Trial");
    case Help:
      return MainWindow::tr("&Help");
  }
  return {};
}

std::span<const MenuRow> MenuRows() { return kMenuRows; }

bool IsReportButton(const ButtonRow& button) {
  return button.Click != &frmVantrel::cmdOpen_Click && button.Click != &frmVantrel::cmdExit_Click;
}

MenuRow RowOf(const ButtonRow& button) {
  return {.Menu = Reports,
          .Name = button.Name,
          .Caption = button.Caption,
          .Keys = {button.Keys},
          .Run = button.Click};
}

QAction* NewAction(const MenuRow& row, QObject* parent) {
  auto* action = new QAction(QString::fromUtf16(row.Caption), parent);
  action->setObjectName(QLatin1String(row.Name));
  action->setCheckable(row.Checkable);
  QList<QKeySequence> keys;
  for (const QKeyCombination key : row.Keys) {
    if (key.key() != Qt::Key_unknown) keys << key;
  }
  action->setShortcuts(keys);
  // A key that is held down runs a command once.
  action->setAutoRepeat(row.Turn == MenuTurn::AtOnce);
  return action;
}

}  // namespace app
