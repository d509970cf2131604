// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/NormalGcd.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>
#include <set>
#include <string>

#include <fmt/format.h>

#include "gait/EventNames.h"
#include "gait/GcdCurveTable.h"
#include "visit/NormalFile.h"
#include "visit/PlainNumber.h"

namespace visit {

using modVantrel::Component;
using modVantrel::GaitSide;
using modVantrel::GcdCurveSpec;

namespace {

constexpr std::string_view kWhite = " \t\r";

// A variable of the GCD files: the row that writes it and the component that it is.
struct Variable {
  const GcdCurveSpec* Row;
  Component Part;
};

std::optional<Variable> FindVariable(std::string_view name) {
  if (name.empty()) return std::nullopt;  // what a row does not write has no name
  for (const GcdCurveSpec& row : modVantrel::GcdCurveTable()) {
    if (row.Sagittal == name) return Variable{&row, Component::X};
    if (row.Coronal == name) return Variable{&row, Component::Y};
    if (row.Axial == name) return Variable{&row, Component::Z};
  }
  return std::nullopt;
}

// Whether `name` is a variable with a side in front of it, as the file of one stride has it.
bool IsOfOneSide(std::string_view name) {
  return std::ranges::any_of(std::array{GaitSide::Left, GaitSide::Right}, [name](GaitSide foot) {
    const std::string_view side = modVantrel::SideName(foot);
    return name.starts_with(side) && FindVariable(name.substr(side.size()));
  });
}

std::string_view TrimmedOfWhite(std::string_view text) {
  const auto first = text.find_first_not_of(kWhite);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

class GcdReader {
 public:
  void Take(std::string_view line) {
    ++line_;
    line = TrimmedOfWhite(line);
    if (line.empty()) return;
    if (line.starts_with('!')) {
      Begin(line.substr(1));
    } else if (line.starts_with('#') || line.starts_with('$')) {
      End();
    } else if (variable_) {
      TakeInstant(line);
    }
  }

  Normals WhenComplete() {
    End();
    if (normals_.IsEmpty()) Refuse("no normal curve in the whole file");
    return std::move(normals_);
  }

 private:
  [[noreturn]] void Refuse(std::string what) const { throw NormalFault{line_, std::move(what)}; }

  void Begin(std::string_view name) {
    End();
    variable_ = FindVariable(name);
    if (!variable_ && IsOfOneSide(name)) {
      Refuse(fmt::format("{} is the curve of a side, normals have none", name));
    }
    if (!variable_) return;
    name_ = name;
    if (!known_.insert(name_).second) Refuse(fmt::format("{} stands here a second time", name));
  }

  void End() {
    if (variable_ && instants_ != kInstants) {
      Refuse(fmt::format("{} ends after {} of {} values", name_, instants_, kInstants));
    }
    if (variable_) Keep(*variable_->Row);
    variable_.reset();
    instants_ = 0;
  }

  void TakeInstant(std::string_view line) {
    const std::size_t gap = std::min(line.find_first_of(kWhite), line.size());
    const auto mean = Scaled(PlainNumber(line.substr(0, gap)));
    const auto deviation = Scaled(PlainNumber(TrimmedOfWhite(line.substr(gap))));
    if (!mean || !deviation || *deviation < 0) {
      Refuse(fmt::format("a mean and a deviation of {} should stand here", name_));
    }
    if (instants_ == kInstants) Refuse(fmt::format("{} has more than {} values", name_, kInstants));
    curve_.Mean[instants_] = *mean;
    curve_.Deviation[instants_] = *deviation;
    ++instants_;
  }

  // A value in the unit of trials; none where that would be infinite.
  std::optional<double> Scaled(std::optional<double> value) const {
    if (value && variable_->Row->Scale != 1) *value *= kNmmPerNm;
    if (value && !std::isfinite(*value)) return std::nullopt;
    return value;
  }

  void Keep(const GcdCurveSpec& row) {
    for (const std::string_view label : {row.Label, row.Alternative}) {
      if (!label.empty()) normals_.CurveAt(label, variable_->Part) = curve_;
    }
  }

  static constexpr double kNmmPerNm = 1000;

  Normals normals_;
  std::set<std::string, std::less<>> known_;
  std::optional<Variable> variable_;  // whose values come
  std::string name_;
  NormalCurve curve_;
  std::size_t instants_ = 0;
  std::int64_t line_ = 0;
};

}  // namespace

Normals NormalsOfGcd(std::string_view text) {
  GcdReader reader;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    reader.Take(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return reader.WhenComplete();
}

}  // namespace visit
