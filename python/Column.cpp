// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/Column.h"

#include <cmath>
#include <limits>
#include <stdexcept>
#include <type_traits>

namespace python {

namespace {

ColumnValues ValuesOf(ColumnType type) {
  switch (type) {
    case ColumnType::Text:
      return TextColumn();
    case ColumnType::Integer:
      return std::vector<std::int64_t>();
    case ColumnType::Single:
      return std::vector<float>();
    case ColumnType::Double:
      return std::vector<double>();
    case ColumnType::Any:
      break;
  }
  return std::vector<AnyValue>();
}

// The values as those of that kind.
template <typename Values>
Values& As(ColumnValues& values) {
  if (auto* own = std::get_if<Values>(&values)) return *own;
  throw std::logic_error("a value that is not of its column's type");
}

template <typename Float>
Float FiniteOrMissing(Float number) {
  return std::isfinite(number) ? number : std::numeric_limits<Float>::quiet_NaN();
}

AnyValue AnyNumber(double number) { return std::isfinite(number) ? AnyValue(number) : AnyValue(); }

void AppendTo(TextColumn& texts, const TextColumn& others) {
  for (const std::int32_t row : others.Rows) {
    if (row == TextColumn::kMissing) {
      texts.Rows.push_back(row);
    } else {
      texts.Add(others.Texts[static_cast<std::size_t>(row)]);
    }
  }
}

template <typename Value>
void AppendTo(std::vector<Value>& values, const std::vector<Value>& others) {
  values.insert(values.end(), others.begin(), others.end());
}

template <typename Value>
void Cut(std::vector<Value>& values, std::size_t rows) {
  if (values.size() > rows) values.resize(rows);
}

void Cut(TextColumn& texts, std::size_t rows) { Cut(texts.Rows, rows); }

}  // namespace

void TextColumn::Add(std::string_view text) {
  // Most rows repeat the text of the row before.
  if (!Rows.empty() && Rows.back() != kMissing &&
      Texts[static_cast<std::size_t>(Rows.back())] == text) {
    Rows.push_back(Rows.back());
    return;
  }
  const auto place = Places.try_emplace(std::string(text), static_cast<std::int32_t>(Texts.size()));
  if (place.second) Texts.emplace_back(text);
  Rows.push_back(place.first->second);
}

Column::Column(ColumnType type) : values_(ValuesOf(type)) {}

void Column::AddText(std::string_view text) {
  if (auto* any = std::get_if<std::vector<AnyValue>>(&values_)) {
    any->emplace_back(std::string(text));
  } else {
    As<TextColumn>(values_).Add(text);
  }
}

void Column::AddInteger(std::int64_t number) {
  if (auto* any = std::get_if<std::vector<AnyValue>>(&values_)) {
    any->emplace_back(number);
  } else if (auto* doubles = std::get_if<std::vector<double>>(&values_)) {
    doubles->push_back(static_cast<double>(number));
  } else {
    As<std::vector<std::int64_t>>(values_).push_back(number);
  }
}

void Column::AddSingle(float number) {
  if (auto* singles = std::get_if<std::vector<float>>(&values_)) {
    singles->push_back(FiniteOrMissing(number));
  } else {
    AddDouble(number);
  }
}

void Column::AddDouble(double number) {
  if (auto* any = std::get_if<std::vector<AnyValue>>(&values_)) {
    any->push_back(AnyNumber(number));
  } else {
    As<std::vector<double>>(values_).push_back(FiniteOrMissing(number));
  }
}

void Column::AddMissing() {
  if (auto* texts = std::get_if<TextColumn>(&values_)) {
    texts->Rows.push_back(TextColumn::kMissing);
  } else if (auto* any = std::get_if<std::vector<AnyValue>>(&values_)) {
    any->emplace_back();
  } else {
    AddSingle(std::numeric_limits<float>::quiet_NaN());
  }
}

void Column::Append(const Column& other) {
  std::visit(
      [&other](auto& values) {
        AppendTo(values, std::get<std::remove_reference_t<decltype(values)>>(other.values_));
      },
      values_);
}

void Column::CutTo(std::size_t rows) {
  std::visit([rows](auto& values) { Cut(values, rows); }, values_);
}

}  // namespace python
