// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pages/PageKinds.h"
#include "plot/PageDrawing.h"
#include "plot/PageFiles.h"

namespace curves {

// What the user asked for.
struct Request {
  std::vector<std::string> Files;
  std::vector<pages::PageKind> Kinds;  // each once, in the order in which they were named
  std::vector<std::string> Labels;     // for the page of labels over time
  std::optional<plot::Shown> Curves;   // by the number of files where it was not said
  std::string NormalFile;              // empty for none
  std::string Title;
  std::string Subject;
  plot::SheetKind Sheet;
  bool IsMonochrome = false;
  bool Overwrite = false;
  std::string Output;
  std::optional<plot::FileKind> OutputKind;  // none for the pages as values
};

}  // namespace curves
