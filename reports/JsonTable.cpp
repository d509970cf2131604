// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/JsonTable.h"

#include <cmath>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "support/ShortestNumber.h"

namespace reports {

// Writes one row at a time.
class JsonTable::Writer {
 public:
  rapidjson::Writer<rapidjson::StringBuffer>& Row() { return row_; }

  std::string_view Text() const { return {buffer_.GetString(), buffer_.GetSize()}; }

  void Clear() {
    buffer_.Clear();
    row_.Reset(buffer_);
  }

 private:
  rapidjson::StringBuffer buffer_;
  rapidjson::Writer<rapidjson::StringBuffer> row_{buffer_};
};

namespace {

rapidjson::SizeType Size(std::string_view text) {
  return static_cast<rapidjson::SizeType>(text.size());
}

}  // namespace

JsonTable::JsonTable(modAllPurpose::ReportOutput& output)
    : output_(output), writer_(std::make_unique<Writer>()) {}

JsonTable::~JsonTable() = default;

void JsonTable::Begin(std::span<const std::string_view> columns) {
  columns_.assign(columns.begin(), columns.end());
  output_.Piece("[");
}

// Each row of a part brings the comma in front of it, also the first.
void JsonTable::BeginPart(std::span<const std::string_view> columns) {
  columns_.assign(columns.begin(), columns.end());
  isFirstRow_ = false;
}

void JsonTable::AddPart(std::string_view text) {
  if (text.empty()) return;
  if (isFirstRow_) text.remove_prefix(1);
  isFirstRow_ = false;
  output_.Piece(text);
}

void JsonTable::BeginRowsWith(std::span<const std::string_view> texts) {
  shared_.assign(texts.begin(), texts.end());
}

void JsonTable::Put(std::string_view text) { writer_->Row().String(text.data(), Size(text)); }

// Of the next value; in front of the first one come those that each row begins with.
void JsonTable::Name() {
  auto& row = writer_->Row();
  const auto key = [&] {
    const std::string_view name = columns_.at(column_++);
    row.Key(name.data(), Size(name));
  };
  if (column_ == 0) {
    row.StartObject();
    for (const std::string_view text : shared_) {
      key();
      Put(text);
    }
  }
  key();
}

void JsonTable::Text(std::string_view text) {
  Name();
  Put(text);
}

void JsonTable::Number(std::int64_t number) {
  Name();
  writer_->Row().Int64(number);
}

template <typename Float>
void JsonTable::FloatNumber(Float number) {
  if (!std::isfinite(number)) {
    Missing();
    return;
  }
  Name();
  number_.clear();
  modAllPurpose::AppendShortest(number_, number);
  writer_->Row().RawValue(number_.data(), number_.size(), rapidjson::kNumberType);
}

void JsonTable::Number(float number) { FloatNumber(number); }

void JsonTable::Number(double number) { FloatNumber(number); }

void JsonTable::Missing() {
  Name();
  writer_->Row().Null();
}

void JsonTable::EndRow() {
  writer_->Row().EndObject();
  row_ = isFirstRow_ ? "\n" : ",\n";
  row_ += writer_->Text();
  output_.Piece(row_);
  isFirstRow_ = false;
  writer_->Clear();
  column_ = 0;
}

void JsonTable::DropRow() {
  writer_->Clear();
  column_ = 0;
  shared_.clear();
}

void JsonTable::End() {
  output_.Line("");
  output_.Line("]");
}

}  // namespace reports
