// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MainWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>
#include <QMenuBar>

#include "app/CurvesWindow.h"
#include "app/QtText.h"
#include "app/frmVantrel.h"

namespace app {

namespace {

QString ObjectNameOf(MenuName menu) {
  return QStringLiteral("menu") + CaptionOf(menu).remove(u'&');
}

}  // namespace

MainWindow::MainWindow(modVantrel::FileState& state) : form_(new frmVantrel(state)) {
  setObjectName(QStringLiteral("MainWindow"));
  setCentralWidget(form_);
  setWindowTitle(form_->windowTitle());
  connect(form_, &QWidget::windowTitleChanged, this, &QWidget::setWindowTitle);
  connect(form_, &frmVantrel::OpenFileChanged, this, &MainWindow::EnableActions);
  connect(form_, &frmVantrel::OpenFileChanged, this, &MainWindow::FollowWithCurves);
  connect(this, &MainWindow::CurvesAsked, this, &MainWindow::ShowCurves);
  // A file that is dropped on the menu bar is for the form too.
  setAcceptDrops(true);
  installEventFilter(form_);
  FillMenus();
  EnableActions();
}

void MainWindow::Load(const std::string& commandLine) { form_->Form_Load(commandLine); }

void MainWindow::closeEvent(QCloseEvent* event) {
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
  const auto* handler = std::get_if<WindowHandler>(&row.Run);
  if (handler == nullptr) return form_->findChild<QAction*>(QLatin1String(row.Name));
  QAction* action = NewAction(row, this);
  if (row.Turn == MenuTurn::Command) {
    connect(action, &QAction::triggered, this,
            [this, run = *handler] { form_->RunCommand([&] { (this->*run)(); }); });
  } else {
    connect(action, &QAction::triggered, this, *handler);
  }
  return action;
}

void MainWindow::FillMenus() {
  // In the order of the bar; those that have no entry yet are filled by others or stay away.
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
  return needed == MenuNeeds::Nothing || !form_->OpenFileSpec().empty();
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
