// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cmath>
#include <cstdint>
#include <optional>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>
#include <string_view>

#include "support/ShortestNumber.h"
#include "support/Text.h"

namespace pages {

// Writes a JSON text piece by piece. Numbers are the shortest texts that read back to the same
// number of their type, null where they are missing or not finite; bytes that are no UTF-8 become
// U+FFFD.
class JsonWriter {
 public:
  std::string Text() const { return {buffer_.GetString(), buffer_.GetSize()}; }

  template <typename Members>
  void Object(Members members) {
    writer_.StartObject();
    members();
    writer_.EndObject();
  }

  // Calls `entry` with each element of `range`.
  template <typename Range, typename Entry>
  void Array(const Range& range, Entry entry) {
    writer_.StartArray();
    for (const auto& element : range) entry(element);
    writer_.EndArray();
  }

  void Key(std::string_view name) { writer_.Key(name.data(), SizeOf(name)); }

  template <typename Value>
  void Member(std::string_view name, const Value& value) {
    Key(name);
    Put(value);
  }

  // A member that is an array of plain values.
  template <typename Range>
  void List(std::string_view name, const Range& range) {
    Key(name);
    Array(range, [this](const auto& value) { this->Put(value); });
  }

  void Put(std::string_view text) {
    const std::string valid = modAllPurpose::WithReplacements(text);
    writer_.String(valid.data(), SizeOf(valid));
  }
  void Put(const std::string& text) { Put(std::string_view(text)); }
  void Put(const char* text) { Put(std::string_view(text)); }
  void Put(bool value) { writer_.Bool(value); }
  void Put(int number) { writer_.Int(number); }
  void Put(std::int64_t number) { writer_.Int64(number); }
  void Put(float number) { PutNumber(number); }
  void Put(double number) { PutNumber(number); }

  template <typename Value>
  void Put(const std::optional<Value>& value) {
    if (value) {
      Put(*value);
    } else {
      writer_.Null();
    }
  }

 private:
  static rapidjson::SizeType SizeOf(std::string_view text) {
    return static_cast<rapidjson::SizeType>(text.size());
  }

  template <typename Number>
  void PutNumber(Number number) {
    if (!std::isfinite(number)) {
      writer_.Null();
      return;
    }
    number_.clear();
    modAllPurpose::AppendShortest(number_, number);
    writer_.RawValue(number_.data(), number_.size(), rapidjson::kNumberType);
  }

  rapidjson::StringBuffer buffer_;
  rapidjson::Writer<rapidjson::StringBuffer> writer_{buffer_};
  std::string number_;
};

}  // namespace pages
