// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/NormalCsv.h"

#include <array>
#include <bitset>
#include <limits>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "support/Text.h"
#include "visit/CsvRecords.h"
#include "visit/NormalFile.h"
#include "visit/PlainNumber.h"

namespace visit {

using modVantrel::Component;

namespace {

enum Column : std::size_t { kLabel, kComponent, kPercent, kMean, kDeviation, kCount, kUnit };

const std::vector<std::string> kHeading = {"label", "component", "percent", "mean",
                                           "sd",    "n",         "unit"};

std::string Quoted(std::string_view text) { return fmt::format("'{}'", text); }

// An empty field is a missing number.
std::optional<double> NumberIn(const CsvRecord& record, Column column) {
  const std::string& field = record.Fields[column];
  if (field.empty()) return std::nullopt;
  if (const auto number = PlainNumber(field)) return number;
  throw NormalFault{record.Line, fmt::format("{} is no number", Quoted(field))};
}

// As NumberIn: what counts or measures a spread is never negative.
std::optional<double> NotNegativeIn(const CsvRecord& record, Column column) {
  const auto number = NumberIn(record, column);
  if (!number || *number >= 0) return number;
  throw NormalFault{record.Line, fmt::format("{} is negative, which {} cannot be",
                                             Quoted(record.Fields[column]), kHeading[column])};
}

Component ComponentIn(const CsvRecord& record) {
  const std::string key = modAllPurpose::SearchKey(record.Fields[kComponent]);
  if (key == "X") return Component::X;
  if (key == "Y") return Component::Y;
  if (key == "Z") return Component::Z;
  throw NormalFault{record.Line, fmt::format("the component is x, y or z, not {}",
                                             Quoted(record.Fields[kComponent]))};
}

std::size_t InstantIn(const CsvRecord& record) {
  const std::string& field = record.Fields[kPercent];
  const auto percent = PlainNumber(field);
  for (std::size_t i = 0; i < kInstants; ++i) {
    if (percent && *percent == static_cast<double>(PercentOf(i))) return i;
  }
  throw NormalFault{record.Line, fmt::format("the percent is 0, 2 ... 100, not {}", Quoted(field))};
}

class TableReader {
 public:
  void Take(const CsvRecord& record) {
    if (record.Fields.size() != kHeading.size()) {
      throw NormalFault{record.Line, fmt::format("{} fields where there should be {}",
                                                 record.Fields.size(), kHeading.size())};
    }
    if (modAllPurpose::Trimmed(record.Fields[kLabel]).empty()) {
      throw NormalFault{record.Line, "no label"};
    }
    NotNegativeIn(record, kCount);
    if (record.Fields[kComponent].empty() && record.Fields[kPercent].empty()) {
      TakeMeasure(record);
    } else {
      TakeInstant(record);
    }
  }

  Normals WhenComplete() {
    for (const auto& [key, curve] : curves_) {
      if (curve.Instants.all()) continue;
      std::size_t missing = 0;
      while (curve.Instants[missing]) ++missing;
      throw NormalFault{curve.LastLine, fmt::format("{} has no row for {} %, this is its last",
                                                    curve.Name, PercentOf(missing))};
    }
    return std::move(normals_);
  }

 private:
  struct Filled {
    std::string Name;  // as its last row spells it
    std::bitset<kInstants> Instants;
    std::int64_t LastLine = 0;
  };

  void TakeMeasure(const CsvRecord& record) {
    const std::string& name = record.Fields[kLabel];
    if (!measures_.insert(modAllPurpose::SearchKey(name)).second) {
      throw NormalFault{record.Line, fmt::format("{} stands here a second time", name)};
    }
    normals_.MeasureAt(name) = {NumberIn(record, kMean), NotNegativeIn(record, kDeviation)};
  }

  void TakeInstant(const CsvRecord& record) {
    constexpr double kMissing = std::numeric_limits<double>::quiet_NaN();
    const std::string& label = record.Fields[kLabel];
    const Component component = ComponentIn(record);
    const std::size_t i = InstantIn(record);
    const std::string name = fmt::format("{}.{}", label, record.Fields[kComponent]);
    Filled& filled = curves_[{modAllPurpose::SearchKey(label), component}];
    if (filled.Instants[i]) {
      throw NormalFault{record.Line,
                        fmt::format("{} stands here a second time for {} %", name, PercentOf(i))};
    }
    filled.Instants.set(i);
    filled.Name = name;
    filled.LastLine = record.Line;
    NormalCurve& curve = normals_.CurveAt(label, component);
    curve.Mean[i] = NumberIn(record, kMean).value_or(kMissing);
    curve.Deviation[i] = NotNegativeIn(record, kDeviation).value_or(kMissing);
    curve.Unit = record.Fields[kUnit];
  }

  Normals normals_;
  std::map<std::pair<std::string, Component>, Filled> curves_;
  std::set<std::string> measures_;
};

}  // namespace

Normals NormalsOfCsv(std::string_view text) {
  CsvRecords records(text);
  const auto heading = records.Next();
  if (!heading || heading->Fields != kHeading) {
    throw NormalFault{1, "neither a table of norms as csv nor a GCD file"};
  }
  TableReader reader;
  std::int64_t line = heading->Line;
  while (const auto record = records.Next()) {
    line = record->Line;
    reader.Take(*record);
  }
  Normals normals = reader.WhenComplete();
  if (normals.IsEmpty()) throw NormalFault{line, "no normals behind the names of the columns"};
  return normals;
}

}  // namespace visit
