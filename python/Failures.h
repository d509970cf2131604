// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "c3d/OpenC3dFile.h"
#include "support/RuntimeError.h"

// What work on a trial may end in, thrown where no interpreter is known. The module raises an
// exception of Python for each.
namespace python {

// The file at `File` was not opened.
struct OpenFailure {
  std::string File;
  modVantrel::OpenResult Result;
};

// A file that is open, or was opened, does not hold what it says.
struct DataFailure {
  std::string File;
  modAllPurpose::RuntimeError Error;
};

// A trial was asked for its data behind its close.
struct ClosedFailure {
  std::string File;
};

}  // namespace python
