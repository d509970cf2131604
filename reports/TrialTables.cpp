// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/TrialTables.h"

#include <cstdint>
#include <string>
#include <variant>

#include "c3d/LabelTables.h"
#include "c3d/PointKinds.h"
#include "gait/EventNames.h"
#include "gait/GcdCalcs.h"
#include "gait/StrideMeasures.h"
#include "reports/HeaderFields.h"
#include "support/Text.h"

namespace reports {

using modVantrel::EventRecord;
using modVantrel::FileState;
using modVantrel::SideName;
using modVantrel::StrideRecord;

namespace {

void HeaderRow(std::string_view file, const HeaderField& field, TableOutput& table) {
  table.Text(file);
  table.Text(field.Name);
  std::visit([&table](auto value) { table.Number(value); }, field.Value);
  table.EndRow();
}

// Writes the label rows of one kind.
class LabelWriter {
 public:
  LabelWriter(std::string_view file, std::string_view kind, TableOutput& table)
      : file_(file), kind_(kind), table_(table) {}

  void Row(std::int32_t index, std::string_view label, std::string_view description,
           std::string_view unit) {
    table_.Text(file_);
    table_.Text(kind_);
    table_.Number(index);
    table_.Text(label);
    table_.Text(description);
    table_.TextOrMissing(unit);
    table_.EndRow();
  }

 private:
  std::string_view file_;
  std::string_view kind_;
  TableOutput& table_;
};

void PointLabelRows(const FileState& state, std::string_view file, TableOutput& table) {
  const std::int32_t count = state.PointLabels.Count();
  const auto descriptions = modVantrel::ReadTextTable(state, "POINT", "DESCRIPTIONS", count);
  const modVantrel::PointKinds kinds(state);
  LabelWriter writer(file, "point", table);
  for (std::int32_t i = 1; i <= count; ++i) {
    const std::string& label = state.PointLabels[i];
    writer.Row(i, label, descriptions[i], kinds.UnitOf(label));
  }
}

void ChannelLabelRows(const FileState& state, std::string_view file, TableOutput& table) {
  const std::int32_t count = state.AnalogLabels.Count();
  const auto descriptions = modVantrel::ReadTextTable(state, "ANALOG", "DESCRIPTIONS", count);
  const auto units = modVantrel::ReadTextTable(state, "ANALOG", "UNITS", count);
  LabelWriter writer(file, "analog", table);
  for (std::int32_t i = 1; i <= count; ++i) {
    writer.Row(i, state.AnalogLabels[i], descriptions[i], modAllPurpose::WithoutFilling(units[i]));
  }
}

void MeasureRowsOf(const modVantrel::SingleValueMeasures& measures, std::string_view lengthUnit,
                   std::string_view file, TableOutput& table) {
  for (const modVantrel::MeasureSpec& measure : modVantrel::MeasureTable()) {
    table.Text(file);
    table.Text(SideName(measures.Side));
    table.Number(measures.Number);
    table.Text(measure.Name);
    table.Number(measure.ValueOf(measures));
    table.TextOrMissing(modVantrel::UnitText(measure.Unit, lengthUnit));
    table.EndRow();
  }
}

}  // namespace

Complaints HeaderRows(const FileState& state, std::string_view file,
                      const TableOptions& /*options*/, TableOutput& table) {
  for (const HeaderField& field : StoredHeaderFields(state.Header)) HeaderRow(file, field, table);
  HeaderRow(file, HeaderEventCount(state.Header), table);
  for (const HeaderField& field : DerivedHeaderFields(state)) HeaderRow(file, field, table);
  return {};
}

Complaints LabelRows(const FileState& state, std::string_view file, const TableOptions& /*options*/,
                     TableOutput& table) {
  PointLabelRows(state, file, table);
  ChannelLabelRows(state, file, table);
  return {};
}

Complaints EventRows(const FileState& state, std::string_view file, const TableOptions& /*options*/,
                     TableOutput& table) {
  const modVantrel::GaitEventState& gait = state.GaitEvents;
  std::int32_t number = 0;
  for (const auto* list :
       {&gait.SidedStrikeOffEvents, &gait.SidedGeneralEvents, &gait.NonSidedEvents}) {
    for (const EventRecord& event : *list) {
      table.Text(file);
      table.Number(++number);
      table.Text(SideName(event.Side));
      table.Text(modVantrel::EventTypeName(event.Type));
      table.Number(event.Time);
      table.EndRow();
    }
  }
  return {};
}

Complaints StrideRows(const FileState& state, std::string_view file,
                      const TableOptions& /*options*/, TableOutput& table) {
  for (const StrideRecord& stride : state.GaitEvents.ValidStrides) {
    table.Text(file);
    table.Text(SideName(stride.Side));
    table.Number(stride.Number);
    for (const float time :
         {stride.StartStrikeTime, stride.OppositeFootOffTime, stride.OppositeFootStrikeTime,
          stride.SameFootOffTime, stride.StopStrikeTime}) {
      table.Number(time);
    }
    table.EndRow();
  }
  return {};
}

Complaints MeasureRows(const FileState& state, std::string_view file,
                       const TableOptions& /*options*/, TableOutput& table) {
  if (state.GaitEvents.ValidStrideCount == 0) return {};
  const modVantrel::PointKinds kinds(state);
  const std::string& lengthUnit = kinds.UnitOf(modVantrel::PointKind::Marker);
  modVantrel::clsGcdCalcs calcs(state);
  for (std::int32_t i = 1; i <= state.GaitEvents.ValidStrideCount; ++i) {
    MeasureRowsOf(calcs.CalcSingleValueMeasures(i), lengthUnit, file, table);
  }
  return {};
}

}  // namespace reports
