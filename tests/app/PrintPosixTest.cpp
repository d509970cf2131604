// SPDX-License-Identifier: GPL-3.0-or-later

// Reports that are printed. Here the dialog is the toolkit's; Windows shows its own, which no test
// can work.

#include <regex>

#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTest>

#include "tests/app/WindowFixture.h"

namespace {

using WindowPrint = tests::WindowTest;

// The text of a PDF, blanks as they stand on the page.
std::string TextOf(const std::filesystem::path& pdf) {
  QProcess reader;
  reader.start(
      QStringLiteral("pdftotext"),
      {QStringLiteral("-layout"), QString::fromStdString(pdf.string()), QStringLiteral("-")});
  EXPECT_TRUE(reader.waitForFinished());
  return reader.readAllStandardOutput().toStdString();
}

TEST_F(WindowPrint, ThePanesTextIsPrintedWithTheTrialAndThePageAtItsFoot) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  Click("cmdShowSingleValueStrikeOffMeasures");
  const auto pdf = folder_ / "printed.pdf";
  boxes_.Expect([&](QDialog& dialog) {
    auto& print = dynamic_cast<QPrintDialog&>(dialog);
    print.printer()->setOutputFormat(QPrinter::PdfFormat);
    print.printer()->setOutputFileName(QString::fromStdString(pdf.string()));
    print.QDialog::done(QDialog::Accepted);
  });
  Choose("mnuPrint");
  const std::string text = TextOf(pdf);
  EXPECT_NE(text.find("Left Side #1"), std::string::npos) << text;
  EXPECT_NE(text.find("Right Side #3"), std::string::npos);
  EXPECT_TRUE(std::regex_search(text, std::regex("OppositeFootStrikePct: +50"))) << text;
  EXPECT_NE(text.find("walk.c3d"), std::string::npos);
}

TEST_F(WindowPrint, ACancelledPrintDialogPrintsNothingAndGoesOn) {
  Start(WriteSampleWalk());
  boxes_.ExpectAndPress(Qt::Key_Escape);
  PressKeysOf(Entry("mnuPrint"));
  EXPECT_FALSE(form_.IsUnloaded());
  boxes_.ExpectAndPress(Qt::Key_Escape);
  ChooseByArrows(Entry("mnuPrint"));
}

}  // namespace
