// SPDX-License-Identifier: GPL-3.0-or-later

// What the curves window gives away: files, prints, pictures and tables.

#include <algorithm>
#include <memory>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "app/CurvesWindow.h"
#include "app/MessageBoxes.h"
#include "app/PrinterChoice.h"
#include "app/QtText.h"
#include "app/ScreenRoom.h"
#include "app/modMsgBoxPlus.h"
#include "c3d/FileKey.h"
#include "pages/MakePages.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/Text.h"
#include "support/WholeFiles.h"

namespace app {

using modAllPurpose::WholeFile;
using pages::PageKind;

namespace {

void TellError(QWidget* owner, const modAllPurpose::RuntimeError& error) {
  ShowMessage(owner, "The file could not be written.  " + modAllPurpose::RuntimeErrorLine(error));
}

}  // namespace

plot::DrawingStyle CurvesWindow::PaperStyle() const {
  plot::DrawingStyle style = view_->Style();
  style.IsDark = false;
  style.IsQuick = false;
  style.Enlarged = 1;
  return style;
}

plot::SheetKind CurvesWindow::Sheet() const {
  const bool isLetter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
  return {isLetter ? plot::Paper::Letter : plot::Paper::A4, landscape_->isChecked()};
}

std::string CurvesWindow::AskForFile(const QString& title, const QString& name,
                                     const QStringList& filters) {
  QFileDialog dialog(this, title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setOption(QFileDialog::DontConfirmOverwrite);  // asked of all names, where they are known
  dialog.setNameFilters(filters);
  OpenWithinScreen(dialog);
  if (!visit_.Trials().empty()) {
    dialog.setDirectory(ToQString(modAllPurpose::FolderOf(visit_.Trials().front().Path)));
  }
  const auto endingOf = [](const QString& filter) {
    return filter.mid(filter.indexOf(u'.'), filter.indexOf(u')') - filter.indexOf(u'.'));
  };
  dialog.selectFile(name + endingOf(filters.first()));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  QString chosen = dialog.selectedFiles().constFirst();
  const bool hasEnding = std::ranges::any_of(filters, [&](const QString& filter) {
    return chosen.endsWith(endingOf(filter), Qt::CaseInsensitive);
  });
  if (!hasEnding) chosen += endingOf(dialog.selectedNameFilter());
  return PathFrom(chosen);
}

bool CurvesWindow::MayReplace(const std::string& file) {
  const QString replace = tr("Replace");
  return modMsgBoxPlus::MsgBoxPlus(
             this, modMsgBoxPlus::kOkCancel, QStringLiteral("Vantrel"),
             ToQString("The file '" + file + "' already exists.  Do you wish to replace it?"),
             modMsgBoxPlus::kQuestionIcon | modMsgBoxPlus::kSecondButtonIsDefault, replace,
             tr("Cancel"), {}, 0) == replace;
}

void CurvesWindow::WriteOrTell(const std::vector<WholeFile>& files) {
  try {
    if (!modAllPurpose::WriteFilesWhereFree(files).empty()) {
      // Each of the names that are taken is asked for by itself.
      for (const WholeFile& file : files) {
        if (modVantrel::IsC3dFile(file.Path)) {
          ShowMessage(this, "The file '" + file.Path + "' is a C3D file and stays as it is.");
          return;
        }
        if (modAllPurpose::IsNameTaken(file.Path) && !MayReplace(file.Path)) return;
      }
      modAllPurpose::WriteFilesTogether(files);
    }
    Say(tr("%1 was written.").arg(ToQString(files.front().Path)));
  } catch (const modAllPurpose::RuntimeError& error) {
    TellError(this, error);
  }
}

void CurvesWindow::SavePages(const std::string& file, const std::vector<PageKind>& kinds) {
  const auto kind = plot::FileKindOf(file);
  if (!kind || visit_.OnPages().empty()) return;
  const auto set = std::make_shared<const pages::PageSet>(visit_.Pages(Choice(kinds)));
  writing_->Run(
      [this, set, file, kind = *kind, sheet = Sheet(), style = PaperStyle()]() -> Background::Then {
        auto files =
            std::make_shared<std::vector<WholeFile>>(plot::FilesOf(file, *set, kind, sheet, style));
        return [this, files] { WriteOrTell(*files); };
      });
}

void CurvesWindow::SaveThisPage() {
  const QString name = ToQString(pages::InfoOf(Kind()).Name);
  const std::string file =
      AskForFile(tr("Save Page"), name,
                 {tr("PDF (*.pdf)"), tr("SVG Picture (*.svg)"), tr("PNG Picture (*.png)")});
  if (!file.empty()) SavePages(file, {Kind()});
}

void CurvesWindow::SaveAllPages() {
  const std::string file =
      AskForFile(tr("Save All Pages"), QStringLiteral("curves"),
                 {tr("PDF (*.pdf)"), tr("SVG Pictures (*.svg)"), tr("PNG Pictures (*.png)")});
  if (!file.empty()) SavePages(file, AllKinds());
}

void CurvesWindow::PrintPages(QPrinter& printer, const std::vector<PageKind>& kinds) {
  const pages::PageSet set = visit_.Pages(Choice(kinds));
  plot::DrawingStyle style = PaperStyle();
  if (printer.colorMode() == QPrinter::GrayScale) style.IsMonochrome = true;
  printer.setFullPage(true);
  printer.setDocName(windowTitle());
  const QRectF sheet(QPointF(), printer.pageLayout().fullRectPixels(printer.resolution()).size());
  QPainter painter;
  if (!painter.begin(&printer)) {
    ShowMessage(this, "The printer does not take the page.");
    return;
  }
  const int last = printer.toPage() > 0 ? printer.toPage() : static_cast<int>(set.Pages.size());
  bool isFirst = true;
  for (int page = std::max(printer.fromPage(), 1);
       page <= std::min(last, static_cast<int>(set.Pages.size())); ++page) {
    if (!isFirst) printer.newPage();
    isFirst = false;
    plot::DrawPage(painter, set, static_cast<std::size_t>(page) - 1, sheet, style);
  }
}

void CurvesWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(Sheet().IsLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPrintDialog dialog(&printer, this);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange);
  if (!ChoosePrinter(dialog)) return;
  const bool isThisPage = dialog.printRange() == QAbstractPrintDialog::CurrentPage;
  PrintPages(printer, isThisPage ? std::vector{Kind()} : AllKinds());
}

void CurvesWindow::PreviewPrint() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(Sheet().IsLandscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  QPrintPreviewDialog dialog(&printer, this);
  connect(&dialog, &QPrintPreviewDialog::paintRequested, this,
          [this](QPrinter* paper) { PrintPages(*paper, AllKinds()); });
  dialog.exec();
}

void CurvesWindow::CopyPicture() {
  if (!view_->HasPage()) return;
  constexpr double kDotsPerTenth = 150.0 / 720;
  const QRectF paper = plot::SheetOf(Sheet());
  QImage image((paper.size() * kDotsPerTenth).toSize(), QImage::Format_RGB32);
  QPainter painter(&image);
  const pages::PageSet set = visit_.Pages(Choice({Kind()}));
  plot::DrawPage(painter, set, labelPage_, QRectF(image.rect()), PaperStyle());
  painter.end();
  QApplication::clipboard()->setImage(image);
  Say(tr("The page was copied as a picture."));
}

void CurvesWindow::ChooseExport(std::string_view report) {
  const std::string file =
      AskForFile(tr("Export Table"), ToQString(report), {tr("CSV (*.csv)"), tr("JSON (*.json)")});
  if (!file.empty()) ExportTable(report, file);
}

void CurvesWindow::ExportTable(std::string_view report, const std::string& file) {
  const bool isJson = ToQString(file).endsWith(QStringLiteral(".json"), Qt::CaseInsensitive);
  writing_->Run([this, report, file, form = isJson ? TableForm::Json : TableForm::Csv,
                 trials = visit_.ToTabulate()]() -> Background::Then {
    auto made = std::make_shared<MadeTable>(TableOfVisit(report, form, trials));
    return [this, made, file] {
      WriteOrTell({{file, std::move(made->Text)}});
      if (made->Complaints.empty()) return;
      std::string text = "Not all of the visit is in the table:";
      for (const std::string& complaint : made->Complaints) text += "\n" + complaint;
      ShowMessage(this, text);
    };
  });
}

}  // namespace app
