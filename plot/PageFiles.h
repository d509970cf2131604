// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QRectF>

#include "pages/Page.h"
#include "plot/PageDrawing.h"
#include "support/WholeFiles.h"

// Pages as files. The toolkit's application must exist; a display is not needed.
namespace plot {

enum class FileKind { Pdf, Svg, Png };

enum class Paper { A4, Letter };

struct SheetKind {
  Paper Size = Paper::A4;
  bool IsLandscape = false;
};

// The kind of file that the ending of `file` stands for, in any case; nothing for other endings.
std::optional<FileKind> FileKindOf(std::string_view file);

// The sheet in tenths of a point.
QRectF SheetOf(const SheetKind& sheet);

// The bytes of the files of a set: of one for all pages for Pdf, with its fonts and its texts as
// texts; of one a page for Svg and Png.
std::vector<std::string> BytesOf(const pages::PageSet& set, FileKind kind, const SheetKind& sheet,
                                 const DrawingStyle& style);

// The same with their names: `file` for one, else with "-1", "-2" ... before its ending.
std::vector<modAllPurpose::WholeFile> FilesOf(const std::string& file, const pages::PageSet& set,
                                              FileKind kind, const SheetKind& sheet,
                                              const DrawingStyle& style);

}  // namespace plot
