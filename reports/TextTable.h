// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <span>
#include <string_view>

#include "reports/Table.h"

namespace reports {

// A table as a text. It can be made in parts, each by an object and an output of its own, at the
// same time as others: one object, the whole table's, is begun and ended, and takes the texts of
// the parts in between.
class TextTable : public TableOutput {
 public:
  // In place of Begin, for the rows of a part: nothing stands in front of them, and no End follows.
  virtual void BeginPart(std::span<const std::string_view> columns) = 0;

  // Of the whole table: the next piece of the text of a part, which may be cut anywhere. Pieces of
  // one part follow one another, and no row is begun.
  virtual void AddPart(std::string_view text) = 0;
};

}  // namespace reports
