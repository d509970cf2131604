// SPDX-License-Identifier: GPL-3.0-or-later

#include "sample/TrialBuilder.h"

#include <cmath>
#include <utility>

#include "sample/ByteWriter.h"
#include "sample/SectionWriter.h"

namespace sample {

using modVantrel::kBlockSize;

namespace {

constexpr std::int16_t kHeaderEventKey = 12345;

std::size_t BlockStart(std::size_t block) { return (block - 1) * std::size_t{kBlockSize}; }

std::size_t BlocksFor(std::size_t bytes) {
  return (bytes + std::size_t{kBlockSize} - 1) / std::size_t{kBlockSize};
}

}  // namespace

TrialBuilder& TrialBuilder::Processor(std::uint8_t processor) {
  processor_ = processor;
  return *this;
}

TrialBuilder& TrialBuilder::StoredAs(Storage storage) {
  storage_ = storage;
  return *this;
}

TrialBuilder& TrialBuilder::Scale(float scale) {
  scale_ = scale;
  return *this;
}

TrialBuilder& TrialBuilder::Frames(std::int16_t first, std::int16_t last) {
  firstFrame_ = first;
  lastFrame_ = last;
  return *this;
}

TrialBuilder& TrialBuilder::Rate(float framesPerSecond) {
  rate_ = framesPerSecond;
  return *this;
}

TrialBuilder& TrialBuilder::AddPoint(const std::string& label, PointCurve curve) {
  if (!hasOwnPoints_) points_.clear();
  hasOwnPoints_ = true;
  points_.push_back({label, std::move(curve)});
  return *this;
}

TrialBuilder& TrialBuilder::NotSeen(std::size_t point, std::int32_t frame) {
  notSeen_.emplace(point, frame);
  return *this;
}

TrialBuilder& TrialBuilder::AddAnalog(const std::string& label, const std::string& description,
                                      AnalogCurve curve) {
  channels_.push_back({label, description, std::move(curve)});
  return *this;
}

TrialBuilder& TrialBuilder::SamplesPerFrame(std::int16_t samples) {
  samplesPerFrame_ = samples;
  return *this;
}

TrialBuilder& TrialBuilder::AddEvent(const std::string& context, const std::string& label,
                                     float seconds) {
  events_.push_back({context, label, seconds});
  return *this;
}

TrialBuilder& TrialBuilder::AddHeaderEvent(const std::string& label, float seconds,
                                           std::uint8_t display) {
  headerEvents_.push_back({label, seconds, display});
  return *this;
}

TrialBuilder& TrialBuilder::SetParam(const std::string& group, ParamSpec param) {
  return EditSection(
      [group, param = std::move(param)](SectionSpec& section) { section.SetParam(group, param); });
}

TrialBuilder& TrialBuilder::DropParam(const std::string& group, const std::string& param) {
  return EditSection([group, param](SectionSpec& section) { section.DropParam(group, param); });
}

TrialBuilder& TrialBuilder::DropGroup(const std::string& group) {
  return EditSection([group](SectionSpec& section) { section.DropGroup(group); });
}

TrialBuilder& TrialBuilder::EditSection(std::function<void(SectionSpec&)> edit) {
  edits_.push_back(std::move(edit));
  return *this;
}

TrialBuilder& TrialBuilder::Order(RecordOrder order) {
  order_ = order;
  return *this;
}

TrialBuilder& TrialBuilder::End(SectionEnd end) {
  end_ = end;
  return *this;
}

TrialBuilder& TrialBuilder::ParamBlock(std::uint8_t block) {
  paramBlock_ = block;
  return *this;
}

TrialBuilder::Counts TrialBuilder::OwnCounts() const {
  return {static_cast<std::int16_t>(points_.size()),
          static_cast<std::int16_t>(channels_.size() * static_cast<std::size_t>(samplesPerFrame_))};
}

SectionSpec TrialBuilder::ValidSection() const {
  SectionSpec section;
  std::vector<std::string> labels;
  for (const Point& point : points_) labels.push_back(point.Label);
  section.SetParam("POINT", IntegerParam("USED", OwnCounts().Points));
  section.SetParam("POINT", SingleParam("SCALE", SignedScale()));
  section.SetParam("POINT", SingleParam("RATE", rate_));
  section.SetParam("POINT", IntegerParam("FRAMES", static_cast<std::int16_t>(FrameCount())));
  section.SetParam("POINT", TextListParam("LABELS", labels));

  std::vector<std::string> channelLabels;
  std::vector<std::string> descriptions;
  for (const Channel& channel : channels_) {
    channelLabels.push_back(channel.Label);
    descriptions.push_back(channel.Description);
  }
  section.SetParam("ANALOG", IntegerParam("USED", static_cast<std::int16_t>(channels_.size())));
  section.SetParam("ANALOG", SingleParam("RATE", rate_ * static_cast<float>(samplesPerFrame_)));
  section.SetParam("ANALOG", TextListParam("LABELS", channelLabels));
  section.SetParam("ANALOG", TextListParam("DESCRIPTIONS", descriptions));
  if (events_.empty()) return section;

  std::vector<std::string> contexts;
  std::vector<std::string> eventLabels;
  ParamSpec times{"TIMES", {2, static_cast<std::uint8_t>(events_.size())}, {}, "", false, {}};
  auto& minutesAndSeconds = times.Values.emplace<std::vector<float>>();
  for (const Event& event : events_) {
    contexts.push_back(event.Context);
    eventLabels.push_back(event.Label);
    minutesAndSeconds.insert(minutesAndSeconds.end(), {0.0F, event.Seconds});
  }
  section.SetParam("EVENT", IntegerParam("USED", static_cast<std::int16_t>(events_.size())));
  section.SetParam("EVENT", TextListParam("CONTEXTS", contexts));
  section.SetParam("EVENT", TextListParam("LABELS", eventLabels));
  section.SetParam("EVENT", std::move(times));
  return section;
}

void TrialBuilder::WriteHeader(ByteWriter& bytes, const Counts& counts,
                               std::int16_t dataBlock) const {
  bytes.Byte(paramBlock_);
  bytes.Byte(modVantrel::kFileKey);
  bytes.Integer(counts.Points);
  bytes.Integer(counts.AnalogValues);
  bytes.Integer(firstFrame_);
  bytes.Integer(lastFrame_);
  bytes.Integer(10);  // the interpolation gap that most systems write
  bytes.Single(SignedScale());
  bytes.Integer(dataBlock);
  bytes.Integer(samplesPerFrame_);
  bytes.Single(rate_);
  bytes.PadTo(bytes.Size() + modVantrel::kReserved1Size);
  bytes.Integer(kHeaderEventKey);
  bytes.Integer(static_cast<std::int16_t>(headerEvents_.size()));
  bytes.PadTo(bytes.Size() + modVantrel::kReserved2Size);

  const std::size_t slots{modVantrel::kHeaderEventSlots};
  const std::size_t timesEnd = bytes.Size() + slots * std::size_t{modVantrel::kSingleSize};
  for (const HeaderEvent& event : headerEvents_) bytes.Single(event.Seconds);
  bytes.PadTo(timesEnd);
  for (const HeaderEvent& event : headerEvents_) bytes.Byte(event.Display);
  bytes.PadTo(timesEnd + slots + modVantrel::kReserved3Size);
  for (const HeaderEvent& event : headerEvents_) {
    bytes.PaddedText(event.Label, modVantrel::kHeaderEventLabelSize);
  }
  bytes.PadTo(std::size_t{kBlockSize});
}

Trial TrialBuilder::Build() const { return Assemble(OwnCounts(), true); }

Trial TrialBuilder::BuildWithoutFrames(std::int16_t points, std::int16_t analogValues) const {
  const Counts own = OwnCounts();
  return Assemble(
      {points > 0 ? points : own.Points, analogValues > 0 ? analogValues : own.AnalogValues},
      false);
}

Trial TrialBuilder::Assemble(const Counts& counts, bool withFrames) const {
  SectionSpec section = ValidSection();
  for (const auto& edit : edits_) edit(section);

  const std::size_t sectionStart = BlockStart(paramBlock_);
  WrittenSection written = WriteSection(section, processor_, order_, end_);
  const std::size_t sectionBlocks =
      BlocksFor(written.Records.size() + std::size_t{modVantrel::kParamBlockHeaderSize});
  const std::size_t dataBlock = paramBlock_ + sectionBlocks;

  ByteWriter bytes(processor_);
  WriteHeader(bytes, counts, static_cast<std::int16_t>(dataBlock));
  bytes.PadTo(sectionStart);
  bytes.Byte(1);
  bytes.Byte(modVantrel::kFileKey);
  bytes.Byte(static_cast<std::uint8_t>(sectionBlocks));
  bytes.Byte(processor_);
  for (auto& [name, position] : written.Positions) {
    position += static_cast<std::int32_t>(bytes.Size());
  }
  bytes.Append(written.Records);
  bytes.PadTo(BlockStart(dataBlock));
  if (withFrames) WriteFrames(bytes);
  return {bytes.Take(), processor_, std::move(written.Positions),
          static_cast<std::int32_t>(BlockStart(dataBlock)) + 1, FrameDataSize(counts)};
}

void TrialBuilder::WriteFrames(ByteWriter& bytes) const {
  for (std::int32_t frame = 1; frame <= FrameCount(); ++frame) {
    for (std::size_t i = 0; i < points_.size(); ++i) {
      for (const float coordinate : points_[i].Curve(frame)) {
        WriteValue(bytes, storage_ == Storage::Integer ? coordinate / scale_ : coordinate);
      }
      WriteValue(bytes, notSeen_.contains({i + 1, frame}) ? -1.0F : 0.0F);
    }
    for (std::int32_t k = 1; k <= samplesPerFrame_; ++k) {
      for (const Channel& channel : channels_) {
        WriteValue(bytes, channel.Curve((frame - 1) * samplesPerFrame_ + k));
      }
    }
  }
}

void TrialBuilder::WriteValue(ByteWriter& bytes, float value) const {
  if (storage_ == Storage::Integer) {
    bytes.Integer(static_cast<std::int16_t>(std::lround(value)));
  } else {
    bytes.Single(value);
  }
}

std::uint64_t TrialBuilder::FrameDataSize(const Counts& counts) const {
  const std::int64_t valueSize =
      storage_ == Storage::Integer ? modVantrel::kIntegerSize : modVantrel::kSingleSize;
  const std::int64_t values = counts.Points * modVantrel::kWordsPerPoint + counts.AnalogValues;
  return static_cast<std::uint64_t>(values * valueSize * FrameCount());
}

}  // namespace sample
