// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/HeaderFields.h"

namespace reports {

std::vector<HeaderField> StoredHeaderFields(const modVantrel::C3dHeader& header) {
  return {
      {"ParamBlockPointer", std::int32_t{header.ParamBlockPointer}},
      {"FileID", std::int32_t{header.FileID}},
      {"PointLabelCount", std::int32_t{header.PointLabelCount}},
      {"AnalogValuesPerFrame", std::int32_t{header.AnalogValuesPerFrame}},
      {"FirstPointFrameNumber", std::int32_t{header.FirstPointFrameNumber}},
      {"LastPointFrameNumber", std::int32_t{header.LastPointFrameNumber}},
      {"MaxInterpolationGapAllowed", std::int32_t{header.MaxInterpolationGapAllowed}},
      {"ScaleFactor", header.ScaleFactor},
      {"FirstMarkerAndAnalogBlockPointer", std::int32_t{header.FirstMarkerAndAnalogBlockPointer}},
      {"AnalogSamplesPerChannel", std::int32_t{header.AnalogSamplesPerChannel}},
      {"PointFrameRate", header.PointFrameRate},
      {"EventDataFlag", std::int32_t{header.EventDataFlag}}};
}

HeaderField HeaderEventCount(const modVantrel::C3dHeader& header) {
  return {"TimedEventsCount", std::int32_t{header.TimedEventsCount}};
}

std::vector<HeaderField> DerivedHeaderFields(const modVantrel::FileState& state) {
  return {{"AnalogChannelsCount", state.AnalogChannelsCount},
          {"AnalogFrameRate", state.AnalogFrameRate},
          {"SeekPtrForFirstC3dParam", state.SeekPtrForFirstC3dParam},
          {"SeekPtrForFirstFrameData", state.SeekPtrForFirstFrameData},
          {"ProcessorType", std::int32_t{state.ProcessorType}, " (0=Intel IEEE)"},
          {"DataStoredAsIntegerOrSingle", std::int32_t{state.DataStoredAsIntegerOrSingle}},
          {"PointFrameCount", state.PointFrameCount},
          {"ElapsedTimeOfWalk", state.ElapsedTimeOfWalk},
          {"WalkStartTime", state.WalkStartTime},
          {"WalkEndTime", state.WalkEndTime},
          {"TimeBetweenFrames", state.TimeBetweenFrames}};
}

}  // namespace reports
