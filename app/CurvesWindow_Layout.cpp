// SPDX-License-Identifier: GPL-3.0-or-later

// What stands in the curves window and what works it.

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QCompleter>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/CurvesWindow.h"
#include "app/QtText.h"
#include "app/ScreenRoom.h"

namespace app {

struct CurvesWindow::MenuEntry {
  const char* Name;
  QString Caption;
  QKeySequence Keys;
  Handler Run;
};

void CurvesWindow::LayOut() {
  list_ = new VisitList(this);
  split_ = new QSplitter(this);
  split_->setObjectName(QStringLiteral("split"));
  split_->addWidget(list_);
  split_->addWidget(NewRightSide());
  split_->setStretchFactor(1, 1);
  split_->setChildrenCollapsible(false);
  constexpr int kListWidth = 250;
  constexpr int kPageWidth = 930;
  split_->setSizes({kListWidth, kPageWidth});
  setCentralWidget(split_);
}

QWidget* CurvesWindow::NewRightSide() {
  auto* side = new QWidget(split_);
  tabs_ = new QTabBar(side);
  tabs_->setObjectName(QStringLiteral("pageTabs"));
  tabs_->setAccessibleName(tr("Pages"));
  tabs_->setExpanding(false);
  tabs_->setDrawBase(false);
  for (const pages::PageInfo& page : pages::kPages) tabs_->addTab(ToQString(page.Title));
  view_ = new PageView(side);
  auto* layout = new QVBoxLayout(side);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(tabs_);
  layout->addWidget(view_, 1);
  return side;
}

void CurvesWindow::AddStatus() {
  pointed_ = new QLabel(this);
  pointed_->setObjectName(QStringLiteral("lblPointed"));
  pointed_->setAccessibleName(tr("Pointed at"));
  pointed_->setTextFormat(Qt::PlainText);
  // A long name of a file makes the window no wider.
  pointed_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  progress_ = new QProgressBar(this);
  progress_->setObjectName(QStringLiteral("progress"));
  progress_->setAccessibleName(tr("Progress of reading"));
  constexpr int kWidth = 160;
  progress_->setMaximumWidth(kWidth);
  cancel_ = new QToolButton(this);
  cancel_->setObjectName(QStringLiteral("cmdCancel"));
  cancel_->setText(tr("Cancel"));
  cancel_->setAccessibleName(tr("Cancel reading"));
  cancel_->setFocusPolicy(Qt::StrongFocus);
  statusBar()->addWidget(pointed_, 1);
  statusBar()->addPermanentWidget(progress_);
  statusBar()->addPermanentWidget(cancel_);
  progress_->hide();
  cancel_->hide();
  progressTimer_ = new QTimer(this);
  progressTimer_->setSingleShot(true);
}

QAction* CurvesWindow::AddEntry(QMenu* menu, const MenuEntry& entry) const {
  QAction* action = menu->addAction(entry.Caption);
  action->setObjectName(QLatin1String(entry.Name));
  action->setShortcut(entry.Keys);
  if (entry.Run != nullptr) connect(action, &QAction::triggered, this, entry.Run);
  return action;
}

QAction* CurvesWindow::AddCheck(QMenu* menu, const MenuEntry& entry, bool isChecked) {
  QAction* action = AddEntry(menu, entry);
  action->setCheckable(true);
  action->setChecked(isChecked);
  return action;
}

void CurvesWindow::AddMenus() {
  AddVisitMenu();
  AddPageMenu();
  AddToolBar();
}

void CurvesWindow::AddVisitMenu() {
  QMenu* menu = menuBar()->addMenu(tr("&Visit"));
  menu->setObjectName(QStringLiteral("menuVisit"));
  AddEntry(menu, {"mnuAddTrials", tr("&Add Trials\u2026"), QKeySequence::Open,
                  &CurvesWindow::ChooseTrials});
  list_->addAction(
      AddEntry(menu, {"mnuRemove", tr("&Remove Trial"), {}, &CurvesWindow::RemoveSelected}));
  list_->addAction(
      AddEntry(menu, {"mnuReadAgain", tr("Read A&gain"), Qt::Key_F5, &CurvesWindow::ReadAgain}));
  menu->addSeparator();
  needPages_.push_back(AddEntry(menu, {"mnuSavePage", tr("&Save Page As\u2026"), QKeySequence::Save,
                                       &CurvesWindow::SaveThisPage}));
  needPages_.push_back(
      AddEntry(menu, {"mnuSavePages", tr("Save All &Pages As\u2026"),
                      Qt::CTRL | Qt::SHIFT | Qt::Key_S, &CurvesWindow::SaveAllPages}));
  QMenu* tables = menu->addMenu(tr("&Export Table"));
  tables->setObjectName(QStringLiteral("menuExport"));
  for (const std::string_view report : kVisitTables) {
    QString name = ToQString(report);
    name[0] = name[0].toUpper();
    QAction* action = AddEntry(tables, {"", u'&' + name + u'\u2026', {}, nullptr});
    action->setObjectName(QStringLiteral("mnuExport_") + ToQString(report));
    connect(action, &QAction::triggered, this, [this, report] { ChooseExport(report); });
    needPages_.push_back(action);
  }
  menu->addSeparator();
  needPages_.push_back(
      AddEntry(menu, {"mnuPrint", tr("Pr&int\u2026"), QKeySequence::Print, &CurvesWindow::Print}));
  needPages_.push_back(
      AddEntry(menu, {"mnuPreview", tr("Print Pre&view\u2026"), Qt::CTRL | Qt::SHIFT | Qt::Key_P,
                      &CurvesWindow::PreviewPrint}));
  menu->addSeparator();
  QAction* close = AddEntry(menu, {"mnuClose", tr("&Close"), Qt::CTRL | Qt::Key_W, nullptr});
  connect(close, &QAction::triggered, this, &QWidget::close);
}

void CurvesWindow::AddPageMenu() {
  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  needPages_.push_back(AddEntry(
      edit, {"mnuCopy", tr("&Copy as Picture"), QKeySequence::Copy, &CurvesWindow::CopyPicture}));
  edit->addSeparator();
  leaveOut_ = AddEntry(edit, {"mnuLeaveOut", tr("&Leave Out Stride"), Qt::CTRL | Qt::Key_Delete,
                              &CurvesWindow::LeaveOutLifted});
  AddEntry(edit,
           {"mnuPutBack", tr("&Put Stride Back"), Qt::Key_Escape, &CurvesWindow::PutStrideBack});
  AddEntry(edit, {"mnuAllStrides", tr("&Show All Strides"), Qt::CTRL | Qt::SHIFT | Qt::Key_A,
                  &CurvesWindow::ShowAllStrides});
  QMenu* page = menuBar()->addMenu(tr("&Page"));
  for (int i = 0; i < tabs_->count(); ++i) {
    QAction* action = AddEntry(
        page, {"", tabs_->tabText(i), QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_1 + i)), nullptr});
    connect(action, &QAction::triggered, this, [this, i] { tabs_->setCurrentIndex(i); });
  }
  page->addSeparator();
  AddEntry(page, {"mnuNextPage", tr("&Next Page"), Qt::Key_PageDown, &CurvesWindow::NextPage});
  AddEntry(page,
           {"mnuPreviousPage", tr("&Previous Page"), Qt::Key_PageUp, &CurvesWindow::PreviousPage});
  page->addSeparator();
  auto* curves = new QActionGroup(this);
  strides_ = AddCheck(
      page, {"mnuStrides", tr("&Strides"), Qt::CTRL | Qt::Key_T, &CurvesWindow::DrawStrides},
      false);
  means_ = AddCheck(page, {"mnuMeans", tr("&Mean"), Qt::CTRL | Qt::Key_M, &CurvesWindow::DrawMeans},
                    false);
  curves->addAction(strides_);
  curves->addAction(means_);
  monochrome_ = AddCheck(page, {"mnuMonochrome", tr("M&onochrome"), {}, &CurvesWindow::ChooseStyle},
                         memory_.IsMonochrome());
  landscape_ =
      AddCheck(page, {"mnuLandscape", tr("&Landscape Paper"), {}, &CurvesWindow::ChooseStyle},
               memory_.IsLandscape());
  page->addSeparator();
  AddEntry(page, {"mnuPutPanelsBack", tr("&Reset Zoom"), Qt::CTRL | Qt::Key_0,
                  &CurvesWindow::PutPanelsBack});
}

void CurvesWindow::AddToolBar() {
  QToolBar* bar = addToolBar(tr("Curves"));
  bar->setObjectName(QStringLiteral("toolBar"));
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
  for (const char* name : {"mnuAddTrials", "mnuSavePage", "mnuPrint"}) {
    auto* action = findChild<QAction*>(QLatin1String(name));
    action->setIconText(action->text().remove(u'&').remove(u'\u2026'));
    bar->addAction(action);
  }
  bar->addSeparator();
  bar->addAction(strides_);
  bar->addAction(means_);
  bar->addSeparator();
  auto* caption = new QLabel(tr(" La&bel "), bar);
  labels_ = new QComboBox(bar);
  labels_->setObjectName(QStringLiteral("cboLabel"));
  labels_->setAccessibleName(tr("Label over time"));
  labels_->setEditable(true);
  labels_->setInsertPolicy(QComboBox::NoInsert);
  labels_->completer()->setFilterMode(Qt::MatchContains);
  labels_->completer()->setCompletionMode(QCompleter::PopupCompletion);
  constexpr int kCharacters = 18;
  labels_->setMinimumContentsLength(kCharacters);
  labels_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  caption->setBuddy(labels_);
  bar->addWidget(caption);
  bar->addWidget(labels_);
  for (QToolButton* button : bar->findChildren<QToolButton*>()) {
    button->setFocusPolicy(Qt::TabFocus);
  }
}

void CurvesWindow::ConnectParts() {
  view_->addAction(leaveOut_);
  for (const char* name : {"mnuPutBack", "mnuPutPanelsBack", "mnuCopy", "mnuSavePage"}) {
    view_->addAction(findChild<QAction*>(QLatin1String(name)));
  }
  connect(tabs_, &QTabBar::currentChanged, this, [this] {
    ReadLabels();
    UpdatePage();
    UpdateEntries();
  });
  connect(labels_, &QComboBox::textActivated, this, &CurvesWindow::ChooseLabel);
  connect(view_, &PageView::Pointed, this, &CurvesWindow::Say);
  connect(view_, &PageView::Changed, this, &CurvesWindow::UpdateEntries);
  connect(view_, &PageView::LeaveOutAsked, this, &CurvesWindow::LeaveOutLifted);
  connect(list_, &VisitList::TrialChecked, this, [this](std::size_t trial, bool isShown) {
    visit_.SetShown(trial, isShown);
    ReadLabels();
    UpdateAll();
  });
  connect(list_, &VisitList::StrideChecked, this,
          [this](std::size_t trial, const StrideOfTrial& stride, bool isShown) {
            visit_.SetLeftOut(trial, stride, !isShown);
            UpdateAll();
          });
  connect(list_, &VisitList::RemoveAsked, this, &CurvesWindow::RemoveTrial);
  for (const Background* work : {writing_, background_}) {
    connect(work, &Background::Changed, this, &CurvesWindow::ShowProgress);
  }
  connect(progressTimer_, &QTimer::timeout, this, &CurvesWindow::ShowProgress);
  connect(cancel_, &QToolButton::clicked, this, &CurvesWindow::Cancel);
}

void CurvesWindow::OpenAtItsPlace() {
  split_->restoreState(memory_.Split());
  if (restoreGeometry(memory_.Geometry())) return;
  constexpr QSize kSize(1180, 780);
  OpenInTheMiddle(*this, kSize);
}

}  // namespace app
