// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/PageFiles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include <QBuffer>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <fmt/format.h>

#include "plot/Texts.h"
#include "support/RuntimeError.h"
#include "support/StoppableWork.h"
#include "support/Text.h"

namespace plot {

using modAllPurpose::WholeFile;

namespace {

constexpr int kTenthsOfAnInch = 720;  // tenths of a point in an inch

constexpr std::array kEndings = {std::pair<std::string_view, FileKind>{".PDF", FileKind::Pdf},
                                 std::pair<std::string_view, FileKind>{".SVG", FileKind::Svg},
                                 std::pair<std::string_view, FileKind>{".PNG", FileKind::Png}};

std::string_view EndingOf(std::string_view file) {
  const auto dot = file.rfind('.');
  return dot == std::string_view::npos ? std::string_view() : file.substr(dot);
}

std::string BytesIn(const QBuffer& buffer) {
  return {buffer.data().constData(), static_cast<std::size_t>(buffer.size())};
}

QPageLayout LayoutOf(const SheetKind& sheet) {
  const QPageSize size(sheet.Size == Paper::A4 ? QPageSize::A4 : QPageSize::Letter);
  return {size, sheet.IsLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()};
}

// The error of what cannot be painted, for want of memory alone.
void Begin(QPainter& painter, QPaintDevice* device) {
  if (!painter.begin(device)) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::OutOfMemory);
  }
}

std::string PdfOf(const pages::PageSet& set, const SheetKind& sheet, const DrawingStyle& style) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QPdfWriter writer(&buffer);
    writer.setResolution(kTenthsOfAnInch);
    writer.setPageLayout(LayoutOf(sheet));
    writer.setCreator(TextOf(set.Program));
    writer.setTitle(TextOf(set.Title.empty() ? set.Program : set.Title));
    QPainter painter;
    Begin(painter, &writer);
    for (std::size_t i = 0; i < set.Pages.size(); ++i) {
      modAllPurpose::StoppableWork::EndIfStopped();
      if (i > 0) writer.newPage();
      DrawPage(painter, set, i, SheetOf(sheet), style);
    }
  }
  return BytesIn(buffer);
}

std::string SvgOf(const pages::PageSet& set, std::size_t index, const SheetKind& sheet,
                  const DrawingStyle& style) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    const QRectF paper = SheetOf(sheet);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(kTenthsOfAnInch);
    generator.setSize(paper.size().toSize());
    generator.setViewBox(paper);
    // Unlike the texts of the page these two are written as they come.
    generator.setTitle(TextOf(set.Pages[index].Title).toHtmlEscaped());
    generator.setDescription(TextOf(set.Program).toHtmlEscaped());
    QPainter painter;
    Begin(painter, &generator);
    DrawPage(painter, set, index, paper, style);
  }
  return BytesIn(buffer);
}

std::string PngOf(const pages::PageSet& set, std::size_t index, const SheetKind& sheet,
                  const DrawingStyle& style) {
  constexpr int kDotsPerInch = 200;
  constexpr double kDotsPerMetre = kDotsPerInch / 0.0254;
  const QRectF paper = SheetOf(sheet);
  const QRectF dots(QPointF(), paper.size() * kDotsPerInch / kTenthsOfAnInch);
  QImage image(dots.size().toSize(), QImage::Format_RGB32);
  image.setDotsPerMeterX(static_cast<int>(std::lround(kDotsPerMetre)));
  image.setDotsPerMeterY(static_cast<int>(std::lround(kDotsPerMetre)));
  QPainter painter;
  Begin(painter, &image);
  DrawPage(painter, set, index, QRectF(image.rect()), style);
  painter.end();
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return BytesIn(buffer);
}

}  // namespace

std::optional<FileKind> FileKindOf(std::string_view file) {
  const std::string ending = modAllPurpose::UpperCase(EndingOf(file));
  for (const auto& [name, kind] : kEndings) {
    if (name == ending) return kind;
  }
  return std::nullopt;
}

QRectF SheetOf(const SheetKind& sheet) {
  return {QPointF(), LayoutOf(sheet).fullRectPixels(kTenthsOfAnInch).size()};
}

std::vector<std::string> BytesOf(const pages::PageSet& set, FileKind kind, const SheetKind& sheet,
                                 const DrawingStyle& style) {
  if (kind == FileKind::Pdf) return {PdfOf(set, sheet, style)};
  std::vector<std::string> bytes;
  for (std::size_t i = 0; i < set.Pages.size(); ++i) {
    modAllPurpose::StoppableWork::EndIfStopped();
    bytes.push_back(kind == FileKind::Svg ? SvgOf(set, i, sheet, style)
                                          : PngOf(set, i, sheet, style));
  }
  return bytes;
}

std::vector<WholeFile> FilesOf(const std::string& file, const pages::PageSet& set, FileKind kind,
                               const SheetKind& sheet, const DrawingStyle& style) {
  std::vector<std::string> bytes = BytesOf(set, kind, sheet, style);
  if (bytes.size() == 1) return {{file, std::move(bytes[0])}};
  const std::string_view ending = EndingOf(file);
  const std::string_view stem = std::string_view(file).substr(0, file.size() - ending.size());
  std::vector<WholeFile> files;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    files.push_back({fmt::format("{}-{}{}", stem, i + 1, ending), std::move(bytes[i])});
  }
  return files;
}

}  // namespace plot
