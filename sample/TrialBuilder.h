// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "c3d/C3dFormat.h"
#include "sample/ParameterModel.h"
#include "sample/Trial.h"

namespace sample {

class ByteWriter;

enum class Storage { Integer, Single };

// In which order the records of the parameter section are written.
enum class RecordOrder { GroupThenItsParams, ParamsBeforeGroups, GroupsBeforeParams };

// How the last record ends the section.
enum class SectionEnd { ZeroOffset, ZeroId };

// X, Y, Z of a point in a frame, counted from 1; one sample of a channel, counted from 1 through
// the whole trial.
using PointCurve = std::function<std::array<float, 3>(std::int32_t frame)>;
using AnalogCurve = std::function<float(std::int32_t sample)>;

// Makes C3D files for tests, benches and the sample walk. As constructed it makes a small valid
// trial: Intel, integers at a scale of 0.1, frames 1 to 10 at 100 Hz, one point, no analog
// channels, no events.
class TrialBuilder {
 public:
  TrialBuilder& Processor(std::uint8_t processor);
  TrialBuilder& StoredAs(Storage storage);
  // The scale factor without its sign, which follows from the storage.
  TrialBuilder& Scale(float scale);
  TrialBuilder& Frames(std::int16_t first, std::int16_t last);
  TrialBuilder& Rate(float framesPerSecond);

  // Replaces the one point of a fresh builder, then adds.
  TrialBuilder& AddPoint(const std::string& label, PointCurve curve);
  // Leaves point `point`, counted from 1 as added, unseen in a frame, counted likewise: its fourth
  // word is -1 there.
  TrialBuilder& NotSeen(std::size_t point, std::int32_t frame);
  TrialBuilder& AddAnalog(const std::string& label, const std::string& description,
                          AnalogCurve curve);
  TrialBuilder& SamplesPerFrame(std::int16_t samples);
  // As in an EVENT group: context "Left", "Right" or other; label "Foot Strike", "Foot Off" or
  // other.
  TrialBuilder& AddEvent(const std::string& context, const std::string& label, float seconds);
  // One of the 18 events of the header; they are counted as they are added.
  TrialBuilder& AddHeaderEvent(const std::string& label, float seconds, std::uint8_t display);

  // Changes to the parameter section, made in this order after the section of a valid trial.
  TrialBuilder& SetParam(const std::string& group, ParamSpec param);
  TrialBuilder& DropParam(const std::string& group, const std::string& param);
  TrialBuilder& DropGroup(const std::string& group);
  TrialBuilder& EditSection(std::function<void(SectionSpec&)> edit);

  TrialBuilder& Order(RecordOrder order);
  TrialBuilder& End(SectionEnd end);
  // The block where the parameter section starts; 2 unless set.
  TrialBuilder& ParamBlock(std::uint8_t block);

  Trial Build() const;
  // The trial without its frames, to be written sparse. With `points` and `analogValues` above 0
  // the header counts that many instead of those added.
  Trial BuildWithoutFrames(std::int16_t points = 0, std::int16_t analogValues = 0) const;

 private:
  struct Point {
    std::string Label;
    PointCurve Curve;
  };
  struct Channel {
    std::string Label;
    std::string Description;
    AnalogCurve Curve;
  };
  struct Event {
    std::string Context;
    std::string Label;
    float Seconds;
  };
  struct HeaderEvent {
    std::string Label;
    float Seconds;
    std::uint8_t Display;
  };
  struct Counts {
    std::int16_t Points;
    std::int16_t AnalogValues;
  };

  std::int32_t FrameCount() const { return lastFrame_ - firstFrame_ + 1; }
  float SignedScale() const { return storage_ == Storage::Integer ? scale_ : -scale_; }
  Counts OwnCounts() const;
  SectionSpec ValidSection() const;
  void WriteHeader(ByteWriter& bytes, const Counts& counts, std::int16_t dataBlock) const;
  Trial Assemble(const Counts& counts, bool withFrames) const;
  void WriteFrames(ByteWriter& bytes) const;
  void WriteValue(ByteWriter& bytes, float value) const;
  std::uint64_t FrameDataSize(const Counts& counts) const;

  std::uint8_t processor_ = modVantrel::kProcessorIntel;
  Storage storage_ = Storage::Integer;
  float scale_ = 0.1F;
  std::int16_t firstFrame_ = 1;
  std::int16_t lastFrame_ = 10;
  float rate_ = 100.0F;
  bool hasOwnPoints_ = false;
  std::vector<Point> points_ = {{"LTOE", [](std::int32_t frame) {
                                   const auto step = static_cast<float>(frame);
                                   return std::array{10.0F * step, -5.0F * step, 30.0F};
                                 }}};
  std::set<std::pair<std::size_t, std::int32_t>> notSeen_;  // points and frames, from 1
  std::vector<Channel> channels_;
  std::int16_t samplesPerFrame_ = 1;
  std::vector<Event> events_;
  std::vector<HeaderEvent> headerEvents_;
  std::vector<std::function<void(SectionSpec&)>> edits_;
  RecordOrder order_ = RecordOrder::GroupThenItsParams;
  SectionEnd end_ = SectionEnd::ZeroOffset;
  std::uint8_t paramBlock_ = 2;
};

}  // namespace sample
