// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MainWindow.h"

#include <utility>

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>

#include "app/CaptionButton.h"
#include "app/CurvesWindow.h"
#include "app/ManualWindow.h"
#include "app/NeighbourSearch.h"
#include "app/OutputPane.h"
#include "app/QtText.h"
#include "app/StatusLine.h"
#include "app/TrialStatus.h"
#include "app/frmVantrel.h"
#include "reports/CheckReport.h"

namespace app {

namespace {

QString ObjectNameOf(MenuName menu) {
  return QStringLiteral("menu") + CaptionOf(menu).remove(u'&');
}

}  // namespace

MainWindow::MainWindow(modVantrel::FileState& state)
    : state_(state),
      form_(new frmVantrel(state)),
      recent_(new QMenu(this)),
      search_(new NeighbourSearch(NeighboursOf, this)),
      status_(new TrialStatus(form_->Status(), state, reports::CheckFile, this)) {
  setObjectName(QStringLiteral("MainWindow"));
  setCentralWidget(form_);
  setWindowTitle(form_->windowTitle());
  connect(form_, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
  connect(form_, &frmVantrel::OpenFileChanged, this, &MainWindow::FileWasOpened);
  connect(form_, &frmVantrel::OpenFileChanged, this, &MainWindow::FollowWithCurves);
  connect(this, &MainWindow::CurvesAsked, this, &MainWindow::ShowCurves);
  connect(this, &MainWindow::NormalsChanged, this, &MainWindow::CompareCurves);
  connect(form_, &frmVantrel::ReportChanged, this, &MainWindow::EnableActions);
  connect(search_, &NeighbourSearch::Found, this, &MainWindow::TakeNeighbours);
  // A file that is dropped on the menu bar is for the form too.
  setAcceptDrops(true);
  installEventFilter(form_);
  FillMenus();
  recent_->setToolTipsVisible(true);
  // Not while one of its entries runs, which would be deleted.
  connect(recent_, &QMenu::aboutToShow, this, &MainWindow::FillRecentFiles);
  connect(Menu(MenuName::File), &QMenu::aboutToShow, this, &MainWindow::LookAround);
  EnableActions();
  ShowStatus();
}

MainWindow::~MainWindow() = default;

void MainWindow::Load(const std::string& commandLine) {
  TakeOverTrialChoices();
  form_->Pane().zoomTo(remembered_.Zoom());
  form_->DesktopCheckBox().setChecked(remembered_.DesktopCopy());
  form_->StartDialogIn(remembered_.LastFolder());
  form_->Form_Load(commandLine, remembered_.Place());
}

void MainWindow::RememberState() {
  remembered_.SetPlace(PlaceOf(*this, *form_));
  const long zoom = form_->Pane().SendScintilla(QsciScintillaBase::SCI_GETZOOM);
  remembered_.SetZoom(static_cast<int>(zoom));
  remembered_.SetDesktopCopy(form_->DesktopCheckBox().isChecked());
}

bool MainWindow::IsChecking() const { return status_->IsChecking(); }

void MainWindow::closeEvent(QCloseEvent* event) {
  if (isVisible()) RememberState();
  status_->Stop();
  if (manual_) manual_->close();
  CloseCurves();
  form_->close();
  event->accept();
}

QMenu* MainWindow::Menu(MenuName menu) {
  const QString name = ObjectNameOf(menu);
  if (auto* known = menuBar()->findChild<QMenu*>(name)) return known;
  QMenu* made = menuBar()->addMenu(CaptionOf(menu));
  made->setObjectName(name);
  return made;
}

QAction* MainWindow::ActionOf(const MenuRow& row) {
  if (std::holds_alternative<FormHandler>(row.Run)) {
    return form_->findChild<QAction*>(QLatin1String(row.Name));
  }
  QAction* action = NewAction(row, this);
  if (const auto* run = std::get_if<WindowHandler>(&row.Run)) {
    connect(action, &QAction::triggered, this,
            [this, run = *run] { form_->RunCommand([&] { (this->*run)(); }); });
    // Also where another command kept it from running.
    if (row.Checkable) connect(action, &QAction::triggered, this, &MainWindow::ShowMarks);
  } else {
    action->setMenu(recent_);
  }
  return action;
}

void MainWindow::FillMenus() {
  // On a low screen a menu scrolls; most styles would set it in columns side by side, of which a
  // narrow screen shows the first.
  menuBar()->setStyleSheet(QStringLiteral("QMenu { menu-scrollable: 1; }"));
  // These stand first, whatever comes first into them; the others come with their first entry.
  for (const MenuName menu :
       {MenuName::File, MenuName::Edit, MenuName::Reports, MenuName::Curves}) {
    Menu(menu);
  }
  AddReports();
  AddCurves();
  for (const MenuRow& row : MenuRows()) {
    QMenu* menu = Menu(row.Menu);
    if (row.StartsGroup) menu->addSeparator();
    menu->addAction(ActionOf(row));
  }
}

void MainWindow::AddReports() {
  for (const FormRow& row : FormRows()) {
    const auto* button = std::get_if<ButtonRow>(&row);
    if (button != nullptr && IsReportButton(*button)) {
      Menu(MenuName::Reports)->addAction(ActionOf(RowOf(*button)));
    }
  }
}

void MainWindow::AddCurves() {
  for (const pages::PageInfo& page : pages::kPages) {
    QAction* action = Menu(MenuName::Curves)->addAction(ToQString(page.Title));
    action->setObjectName(QStringLiteral("mnuCurves_") + ToQString(page.Name));
    connect(action, &QAction::triggered, this,
            [this, kind = page.Kind] { emit CurvesAsked(kind); });
  }
}

bool MainWindow::Has(MenuNeeds needed) const {
  switch (needed) {
    case MenuNeeds::Nothing:
      return true;
    case MenuNeeds::OpenFile:
      return !form_->OpenFileSpec().empty();
    case MenuNeeds::NextTrial:
      return !neighbours_.Next.empty();
    case MenuNeeds::PreviousTrial:
      return !neighbours_.Previous.empty();
    case MenuNeeds::Table:
      return form_->Shown() && HasTable(*form_->Shown());
    case MenuNeeds::RecentFiles:
      return !remembered_.RecentFiles().empty();
    case MenuNeeds::Normals:
      return !Normals().empty();
  }
  return false;
}

void MainWindow::EnableActions() {
  for (const MenuRow& row : MenuRows()) {
    findChild<QAction*>(QLatin1String(row.Name))->setEnabled(Has(row.Needs));
  }
  for (const pages::PageInfo& page : pages::kPages) {
    findChild<QAction*>(QStringLiteral("mnuCurves_") + ToQString(page.Name))
        ->setEnabled(Has(MenuNeeds::OpenFile));
  }
}

}  // namespace app
