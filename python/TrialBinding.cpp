// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/TrialBinding.h"

#include <cstdint>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include "c3d/ParameterSection.h"
#include "gait/EventNames.h"
#include "gait/StrideCurve.h"
#include "gait/StrideMeasures.h"
#include "python/Arrays.h"
#include "python/FileNames.h"
#include "python/OpenedTrial.h"
#include "python/OutsideInterpreter.h"
#include "python/Parameters.h"
#include "python/TrialReading.h"

namespace python {

namespace py = pybind11;

using modVantrel::FileState;
using modVantrel::SideName;

namespace {

using WithoutInterpreter = py::call_guard<OutsideInterpreter>;

constexpr py::ssize_t kCoordinates = 3;

// What `work` answers, read without the interpreter's lock.
template <typename Work>
auto Read(const OpenedTrial& trial, Work work) {
  const OutsideInterpreter outside;
  return trial.Read(work);
}

std::vector<std::string> Texts(const modAllPurpose::OneBasedTable<std::string>& table) {
  return {table.begin(), table.end()};
}

// Labels are numbered from 0 in Python.
template <auto read>
auto ReadOfLabel(const OpenedTrial& trial, std::int32_t place) {
  return Read(trial, [place](const FileState& state) { return read(state, place + 1); });
}

py::array_t<float> Points(const OpenedTrial& trial, std::int32_t place) {
  return ArrayOf(ReadOfLabel<ReadCoordinates>(trial, place),
                 {trial.Known().PointFrameCount, kCoordinates});
}

py::array_t<float> Residuals(const OpenedTrial& trial, std::int32_t place) {
  return ArrayOf(ReadOfLabel<ReadResiduals>(trial, place));
}

py::array_t<float> Samples(const OpenedTrial& trial, std::int32_t place) {
  return ArrayOf(ReadOfLabel<ReadSamples>(trial, place).Values);
}

py::array_t<float> Curves(const OpenedTrial& trial, std::int32_t place) {
  const std::vector<float> values = ReadOfLabel<ReadCurves>(trial, place);
  constexpr py::ssize_t kOfStride = modVantrel::kNormalizedPoints * kCoordinates;
  return ArrayOf(values, {static_cast<py::ssize_t>(values.size()) / kOfStride,
                          modVantrel::kNormalizedPoints, kCoordinates});
}

// The events in the order of the table of events.
using EventRow = std::tuple<std::int32_t, std::string_view, std::string_view, float>;
std::vector<EventRow> Events(const OpenedTrial& trial) {
  const modVantrel::GaitEventState& gait = trial.Known().GaitEvents;
  std::vector<EventRow> rows;
  std::int32_t number = 0;
  for (const auto* list :
       {&gait.SidedStrikeOffEvents, &gait.SidedGeneralEvents, &gait.NonSidedEvents}) {
    for (const modVantrel::EventRecord& event : *list) {
      rows.emplace_back(++number, SideName(event.Side), modVantrel::EventTypeName(event.Type),
                        event.Time);
    }
  }
  return rows;
}

using StrideRow = std::tuple<std::string_view, std::int32_t, float, float, float, float, float>;
std::vector<StrideRow> Strides(const OpenedTrial& trial) {
  std::vector<StrideRow> rows;
  for (const modVantrel::StrideRecord& stride : trial.Known().GaitEvents.ValidStrides) {
    rows.emplace_back(SideName(stride.Side), stride.Number, stride.StartStrikeTime,
                      stride.OppositeFootOffTime, stride.OppositeFootStrikeTime,
                      stride.SameFootOffTime, stride.StopStrikeTime);
  }
  return rows;
}

py::array_t<float> Measures(const OpenedTrial& trial) {
  return ArrayOf(Read(trial, WorkOutMeasures),
                 {trial.Known().GaitEvents.ValidStrides.Count(),
                  static_cast<py::ssize_t>(modVantrel::MeasureTable().size())});
}

std::vector<std::string_view> MeasureNames() {
  std::vector<std::string_view> names;
  for (const auto& measure : modVantrel::MeasureTable()) names.push_back(measure.Name);
  return names;
}

std::pair<std::vector<std::string>, std::vector<std::string>> Pair(LabelNotes notes) {
  return {std::move(notes.Descriptions), std::move(notes.Units)};
}

// The values of the parameter of that name; None where there is none.
py::object Parameter(const OpenedTrial& trial, const std::string& group, const std::string& param) {
  const auto found = Read(trial, [&](const FileState& state) {
    return modVantrel::FindGroupAndParam(state, group, param);
  });
  return found.BothFound() ? ValueOf(found.Param) : py::none();
}

std::vector<GroupNames> ParameterNames(const OpenedTrial& trial, bool whole) {
  return trial.Read([whole](const FileState& state) { return ReadParameterNames(state, whole); });
}

std::unique_ptr<OpenedTrial> Open(const py::bytes& file) {
  std::string path = file;
  const OutsideInterpreter outside;
  return std::make_unique<OpenedTrial>(std::move(path));
}

template <auto field>
auto Header() {
  return [](const OpenedTrial& trial) { return trial.Known().Header.*field; };
}

void BindWhatIsKnown(py::class_<OpenedTrial>& trial) {
  using modVantrel::C3dHeader;
  trial.def_property_readonly("file",
                              [](const OpenedTrial& self) { return FileName(self.File()); });
  trial.def_property_readonly("rate", Header<&C3dHeader::PointFrameRate>());
  trial.def_property_readonly("first_frame", Header<&C3dHeader::FirstPointFrameNumber>());
  trial.def_property_readonly("frames",
                              [](const OpenedTrial& self) { return self.Known().PointFrameCount; });
  trial.def_property_readonly(
      "samples_per_frame", [](const OpenedTrial& self) { return SamplesPerFrame(self.Known()); });
  trial.def_property_readonly(
      "labels", [](const OpenedTrial& self) { return Texts(self.Known().PointLabels); });
  trial.def_property_readonly(
      "analog_labels", [](const OpenedTrial& self) { return Texts(self.Known().AnalogLabels); });
  trial.def("times", [](const OpenedTrial& self) { return ArrayOf(FrameTimes(self.Known())); });
  trial.def("events", Events);
  trial.def("strides", Strides);
}

void BindWhatIsRead(py::class_<OpenedTrial>& trial) {
  trial.def("points", Points, py::arg("place"));
  trial.def("residuals", Residuals, py::arg("place"));
  trial.def("analogs", Samples, py::arg("place"));
  trial.def("curves", Curves, py::arg("place"));
  trial.def("analog_times",
            [](const OpenedTrial& self) { return ArrayOf(Read(self, SampleTimes)); });
  trial.def("measures", Measures);
  trial.def("measure_units", [](const OpenedTrial& self) { return Read(self, MeasureUnits); });
  trial.def("point_notes",
            [](const OpenedTrial& self) { return Pair(Read(self, ReadPointNotes)); });
  trial.def("analog_notes",
            [](const OpenedTrial& self) { return Pair(Read(self, ReadChannelNotes)); });
  trial.def("parameter_names", ParameterNames, py::arg("whole"), WithoutInterpreter());
  trial.def("parameter", Parameter, py::arg("group"), py::arg("parameter"));
}

}  // namespace

void BindTrial(py::module_& module) {
  py::class_<OpenedTrial> trial(module, "Trial");
  trial.def(py::init(&Open), py::arg("file"));
  trial.def("close", &OpenedTrial::Close, WithoutInterpreter());
  trial.def_property_readonly("closed",
                              py::cpp_function(&OpenedTrial::IsClosed, WithoutInterpreter()));
  BindWhatIsKnown(trial);
  BindWhatIsRead(trial);
  module.def("measure_names", MeasureNames);
}

}  // namespace python
