// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <map>

#include <QBuffer>
#include <QImage>
#include <QXmlStreamReader>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "SamplePages.h"
#include "plot/PageFiles.h"

namespace {

using plot::BytesOf;
using plot::FileKind;
using plot_tests::SamplePages;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

QByteArray Bytes(const std::string& text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}

TEST(PageFiles, PdfIsOfTheSheetThatWasAskedFor) {
  const auto set = SamplePages({});
  const auto size = [&](const plot::SheetKind& sheet) {
    const auto file = BytesOf(set, FileKind::Pdf, sheet, {})[0];
    return file.substr(file.find("/MediaBox"), 40);
  };
  EXPECT_THAT(size({plot::Paper::A4, false}), HasSubstr("[0 0 595"));
  EXPECT_THAT(size({plot::Paper::Letter, false}), HasSubstr("[0 0 612"));
  EXPECT_THAT(size({plot::Paper::Letter, true}), HasSubstr("[0 0 792"));
}

struct SvgParts {
  std::map<QString, int> Elements;
  std::vector<QString> Texts;
  std::map<QString, int> StrokesOfLines;  // of polylines, by the colour of their group
};

SvgParts PartsOf(const std::string& svg) {
  SvgParts parts;
  QXmlStreamReader reader(Bytes(svg));
  QString stroke;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    const QString name = reader.name().toString();
    ++parts.Elements[name];
    if (name == u"g") stroke = reader.attributes().value(QStringLiteral("stroke")).toString();
    if (name == u"polyline") ++parts.StrokesOfLines[stroke];
    if (name == u"text") parts.Texts.push_back(reader.readElementText().trimmed());
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  return parts;
}

TEST(PageFiles, SvgHasTextsAsTextsAndALineForEachStrideAndPanel) {
  const auto set = SamplePages({2, 1, false, {}});
  const auto files = BytesOf(set, FileKind::Svg, {}, {});
  ASSERT_THAT(files, SizeIs(5));
  const SvgParts parts = PartsOf(files[0]);
  EXPECT_THAT(parts.Texts, testing::Contains(QStringLiteral("Knee flexion")));
  // Ten whole panels of two strides, their ticks, one of a curve with a gap, one whose curves leave
  // it.
  EXPECT_GE(parts.StrokesOfLines.at(QStringLiteral("#d32f2f")), 22);
  EXPECT_GE(parts.StrokesOfLines.at(QStringLiteral("#1565c0")), 22);
  EXPECT_FALSE(parts.Elements.contains(QStringLiteral("clipPath")));
}

TEST(PageFiles, SvgIsWellFormedWhateverTheTextsHold) {
  auto set = SamplePages({1, 1, false, "\x01\n<&>\x7F\xFF\xEF\xBF\xBF\""});
  set.Pages[0].Title = "Title\x02";
  const auto files = BytesOf(set, FileKind::Svg, {}, {});
  ASSERT_THAT(files, SizeIs(5));
  for (const std::string& file : files) {
    EXPECT_GT(PartsOf(file).Texts.size(), 20U);
    EXPECT_TRUE(std::ranges::none_of(file, [](char c) { return c > 0 && c < ' ' && c != '\n'; }));
  }
}

TEST(PageFiles, SvgIsAPageOfItsSheetInTenthsOfAPoint) {
  const auto files = BytesOf(SamplePages({}), FileKind::Svg, {}, {});
  const std::string start = files[0].substr(0, 200);
  EXPECT_THAT(start, HasSubstr("viewBox=\"0 0 5950 8420\"")) << "A4 in whole points";
  EXPECT_THAT(start, HasSubstr("width=\"209.9"));
}

TEST(PageFiles, PngIsAPictureOfEachPage) {
  const auto files = BytesOf(SamplePages({}), FileKind::Png, {plot::Paper::A4, true}, {});
  ASSERT_THAT(files, SizeIs(5));
  const QImage image = QImage::fromData(Bytes(files[0]), "PNG");
  EXPECT_EQ(image.size(), QSize(2339, 1653));
  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
}

TEST(PageFiles, OfSeveralPagesAreNumberedBeforeTheirEnding) {
  auto set = SamplePages({});
  const auto named = [&](const std::string& file) {
    std::vector<std::string> names;
    for (const auto& each : plot::FilesOf(file, set, *plot::FileKindOf(file), {}, {})) {
      names.push_back(each.Path);
    }
    return names;
  };
  set.Pages.resize(2);
  EXPECT_THAT(named("a.b/visit.SVG"), ElementsAre("a.b/visit-1.SVG", "a.b/visit-2.SVG"));
  EXPECT_THAT(named("visit.pdf"), ElementsAre("visit.pdf"));
  set.Pages.resize(1);
  EXPECT_THAT(named("visit.svg"), ElementsAre("visit.svg"));
}

TEST(PageFiles, KindIsThatOfTheEndingInAnyCase) {
  EXPECT_EQ(plot::FileKindOf("x.PDF"), FileKind::Pdf);
  EXPECT_EQ(plot::FileKindOf("x.Svg"), FileKind::Svg);
  EXPECT_EQ(plot::FileKindOf("x.pdf.png"), FileKind::Png);
  EXPECT_EQ(plot::FileKindOf("x.pdf/y"), std::nullopt);
  EXPECT_EQ(plot::FileKindOf("pdf"), std::nullopt);
}

}  // namespace
