// SPDX-License-Identifier: GPL-3.0-or-later

// What the window does with files: the trials of a folder, those opened last, reports and tables
// that are saved or printed, and the file of normals.

#include <optional>

#include <QAction>
#include <QEvent>
#include <QFileDialog>
#include <QMenu>
#include <QPrintDialog>
#include <QScreen>
#include <QTimer>

#include "app/MainWindow.h"
#include "app/MessageBoxes.h"
#include "app/NeighbourSearch.h"
#include "app/OutputPane.h"
#include "app/PrinterChoice.h"
#include "app/QtText.h"
#include "app/ReportPrinter.h"
#include "app/SaveFile.h"
#include "app/ScreenRoom.h"
#include "app/ToolTip.h"
#include "app/TrialStatus.h"
#include "app/frmVantrel.h"
#include "reports/CsvTable.h"
#include "reports/JsonTable.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/Text.h"
#include "visit/NormalFile.h"

namespace app {

namespace {

// A path as `menu` shows it, where "&" marks a letter: a long one without its middle, so that its
// own name is on the screen.
QString Caption(const QString& path, const QMenu& menu) {
  const int most = menu.screen()->availableGeometry().width() * 3 / 4;
  return menu.fontMetrics()
      .elidedText(path, Qt::ElideMiddle, most)
      .replace(u'&', QStringLiteral("&&"));
}

// Nothing where there is no table.
std::optional<std::string> TableText(const ShownReport& report, const std::string& file,
                                     const QString& ending, TableWriting& writing) {
  modAllPurpose::TextReport text;
  if (ending == QStringLiteral("json")) {
    reports::JsonTable table(text);
    writing = WriteTable(report, file, table);
  } else {
    reports::CsvTable table(text);
    writing = WriteTable(report, file, table);
  }
  if (!writing.Failure.empty()) return std::nullopt;
  return text.Text();
}

}  // namespace

void MainWindow::FileWasOpened() {
  const std::string path = form_->OpenFileSpec();
  if (!path.empty()) remembered_.AddRecentFile(modAllPurpose::WholePath(path));
  neighbours_ = {};
  status_->FileChanged(path);
  EnableActions();
  // The folder may be large: it is looked at when what was opened is on the screen.
  QTimer::singleShot(0, this, &MainWindow::LookAround);
}

void MainWindow::LookAround() {
  // A damaged trial is no end of the folder.
  const std::string& path = form_->AskedFileSpec();
  if (path.empty()) TakeNeighbours({});
  search_->Start(path);
}

void MainWindow::TakeNeighbours(const Neighbours& neighbours) {
  neighbours_ = neighbours;
  EnableActions();
}

Neighbours MainWindow::NeighboursNow() {
  const std::string& path = form_->AskedFileSpec();
  TakeNeighbours(path.empty() ? Neighbours() : NeighboursOf(path));
  return neighbours_;
}

bool MainWindow::IsLookingAround() const { return search_->IsBusy(); }

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  // Whoever comes back may have recorded another trial meanwhile.
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) LookAround();
}

void MainWindow::FillRecentFiles() {
  recent_->clear();
  for (const std::string& path : remembered_.RecentFiles()) {
    QAction* entry = recent_->addAction(Caption(ToQString(path), *recent_));
    entry->setToolTip(WrappedToolTip(ToQString(path)));
    connect(entry, &QAction::triggered, this,
            [this, path] { form_->RunCommand([&] { form_->OpenFile(path); }); });
  }
  recent_->addSeparator();
  QAction* clear = recent_->addAction(tr("&Clear"));
  clear->setObjectName(QStringLiteral("mnuClearRecent"));
  connect(clear, &QAction::triggered, this, [this] {
    remembered_.ClearRecentFiles();
    EnableActions();
  });
}

void MainWindow::OpenNextTrial() {
  const std::string next = NeighboursNow().Next;
  if (!next.empty()) form_->OpenFile(next);
}

void MainWindow::OpenPreviousTrial() {
  const std::string previous = NeighboursNow().Previous;
  if (!previous.empty()) form_->OpenFile(previous);
}

QString MainWindow::ProposedName(std::string_view what) const {
  const std::string path = form_->OpenFileSpec();
  const std::string_view own = modAllPurpose::OwnName(path);
  const std::string_view name = modAllPurpose::WithoutExtension(own);
  if (own.empty()) return ToQString(remembered_.LastFolder() + std::string(what));
  return ToQString(std::string(modAllPurpose::FolderPart(path)) +
                   std::string(name.empty() ? own : name) + '-' + std::string(what));
}

void MainWindow::SaveReportAs() {
  const std::string text = form_->Pane().Text();
  const std::string_view what = form_->Shown() ? form_->Shown()->Name : "report";
  SaveFile(this, tr("Save Report As"), ProposedName(what), {{tr("Texts"), QStringLiteral("txt")}},
           [&text](const QString&) -> const std::string& { return text; });
}

void MainWindow::ExportTable() {
  const ShownReport report = form_->Shown().value();
  TableWriting writing;
  SaveFile(
      this, tr("Export Table"), ProposedName(report.Name),
      {{tr("Comma-separated values"), QStringLiteral("csv")}, {tr("JSON"), QStringLiteral("json")}},
      [&](const QString& ending) {
        return TableText(report, form_->OpenFileSpec(), ending, writing);
      });
  if (!writing.Failure.empty()) ShowMessage(this, writing.Failure);
  for (const std::string& complaint : writing.Complaints) ShowMessage(this, complaint);
}

void MainWindow::PrintReport() {
  ReportPrinter printer(windowTitle());
  QPrintDialog dialog(&printer, this);
  dialog.setWindowTitle(tr("Print"));
  if (ChoosePrinter(dialog)) printer.Print(form_->Pane());
}

void MainWindow::ChooseNormals() {
  const QString folder = ToQString(modAllPurpose::FolderPart(Normals()));
  QFileDialog dialog(this, tr("Normals"),
                     folder.isEmpty() ? ToQString(remembered_.LastFolder()) : folder,
                     tr("Normal values (*.csv *.gcd *.CSV *.GCD);;All files (*)"));
  dialog.setFileMode(QFileDialog::ExistingFile);
  OpenWithinScreen(dialog);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  const QString chosen = dialog.selectedFiles().constFirst();
  const auto normals = visit::ReadNormalFile(PathFrom(chosen));
  if (const auto* fault = std::get_if<std::string>(&normals)) {
    ShowMessage(this, *fault);
    return;
  }
  remembered_.SetNormals(PathFrom(chosen));
  EnableActions();
  emit NormalsChanged();
}

void MainWindow::ForgetNormals() {
  remembered_.SetNormals({});
  EnableActions();
  emit NormalsChanged();
}

}  // namespace app
