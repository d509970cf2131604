// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "app/CheckupRun.h"
#include "c3d/FileState.h"

namespace app {

// What the status line says: short texts for its two lines, and all of it in sentences.
struct StatusText {
  QString Name;        // of the file; what there is no room for is left out of its middle
  QStringList Extent;  // frames and rate, the longest form first
  QStringList Counts;  // strides and findings, likewise
  QString Sentence;
};

// How far the checkup of the open file is.
enum class CheckupStage { Running, Done, Failed };

// "No file open".
StatusText StatusWithoutFile();

// Of the open trial; `counts` are those of a checkup that is done.
StatusText StatusOf(const modVantrel::FileState& state, CheckupStage stage,
                    const CheckupCounts& counts);

}  // namespace app
