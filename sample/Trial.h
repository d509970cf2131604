// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace sample {

// The bytes of a C3D file with the positions of its parts, and the ways to damage them. Positions
// are counted from 1.
class Trial {
 public:
  Trial(std::vector<std::byte> bytes, std::uint8_t processor,
        std::map<std::string, std::int32_t> records, std::int32_t frameDataPosition,
        std::uint64_t frameDataSize)
      : bytes_(std::move(bytes)),
        processor_(processor),
        records_(std::move(records)),
        frameDataPosition_(frameDataPosition),
        frameDataSize_(frameDataSize) {}

  const std::vector<std::byte>& Bytes() const { return bytes_; }
  std::size_t Size() const { return bytes_.size(); }
  std::int32_t FrameDataPosition() const { return frameDataPosition_; }

  // The position of the first byte of a record. The trial must hold it.
  std::int32_t GroupPosition(const std::string& group) const { return records_.at(group); }
  std::int32_t ParamPosition(const std::string& group, const std::string& param) const {
    return records_.at(group + ":" + param);
  }

  Trial& TruncateTo(std::size_t size);
  Trial& SetByte(std::int32_t position, std::uint8_t value);
  Trial& SetInteger(std::int32_t position, std::int16_t value);
  Trial& SetSingle(std::int32_t position, float value);
  // Lets the header claim frames `first` to `last`, whatever the file holds.
  Trial& ClaimFrames(std::int16_t first, std::int16_t last);
  // Replaces the offset word of the group or parameter that starts at `position`.
  Trial& SetOffset(std::int32_t position, std::int16_t offset);

  void WriteTo(const std::filesystem::path& path) const;
  // Writes the header and the parameters, and the frames as a hole of their full size.
  void WriteSparseTo(const std::filesystem::path& path) const;

 private:
  Trial& Overwrite(std::int32_t position, const std::vector<std::byte>& bytes);

  std::vector<std::byte> bytes_;
  std::uint8_t processor_;
  std::map<std::string, std::int32_t> records_;
  std::int32_t frameDataPosition_;
  std::uint64_t frameDataSize_;
};

}  // namespace sample
