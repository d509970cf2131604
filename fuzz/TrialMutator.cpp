// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <random>
#include <vector>

#include "c3d/C3dFormat.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

// Changes C3D files where it hurts: records, offsets, dimensions and header words, so that the
// fuzzer gets past the header. One change in four is left to the fuzzer itself.
namespace {

using Bytes = std::vector<std::uint8_t>;

struct RecordPlace {
  std::size_t Start = 0;   // of the record
  std::size_t Offset = 0;  // of its offset word
  std::size_t End = 0;     // of the record, where the next begins
};

std::uint8_t Magnitude(std::uint8_t byte) {
  return byte > 127 ? static_cast<std::uint8_t>(256 - byte) : byte;
}

std::size_t Word(const Bytes& bytes, std::size_t at) {
  return bytes[at] | static_cast<std::size_t>(bytes[at + 1]) << 8U;
}

std::vector<RecordPlace> FindRecords(const Bytes& bytes) {
  std::vector<RecordPlace> records;
  if (bytes.empty() || bytes[0] == 0) return records;
  std::size_t at = (bytes[0] - std::size_t{1}) * modVantrel::kBlockSize +
                   std::size_t{modVantrel::kParamBlockHeaderSize};
  while (at + 4 < bytes.size() && bytes[at + 1] != 0) {
    const std::size_t offset = at + 2 + Magnitude(bytes[at]);
    if (offset + 2 > bytes.size()) break;
    const std::size_t step = Word(bytes, offset);
    const std::size_t end = step < 2 ? bytes.size() : std::min(offset + step, bytes.size());
    records.push_back({at, offset, end});
    if (step < 2) break;
    at = end;
  }
  return records;
}

class Mutation {
 public:
  Mutation(Bytes& bytes, unsigned seed) : bytes_(bytes), random_(seed) {}

  void Apply() {
    const auto records = FindRecords(bytes_);
    if (records.empty() || Upto(3) == 0) {
      ChangeHeader();
      return;
    }
    const RecordPlace& record = records[Upto(records.size() - 1)];
    switch (Upto(6)) {
      case 0:
        SetByte(record.Start, Interesting());  // name length
        break;
      case 1:
        SetByte(record.Start + 1, Interesting());  // id
        break;
      case 2:
        SetByte(record.Offset + Upto(1), Interesting());
        break;
      case 3:
        SetByte(record.Offset + 2, Type());
        break;
      case 4:
        SetByte(record.Offset + 3, static_cast<std::uint8_t>(Upto(9)));  // dimension count
        break;
      case 5:
        SetByte(record.Offset + 4 + Upto(6), Interesting());  // a dimension
        break;
      default:
        CopyRecord(record, records[Upto(records.size() - 1)]);
    }
  }

 private:
  std::size_t Upto(std::size_t most) {
    return std::uniform_int_distribution<std::size_t>(0, most)(random_);
  }

  std::uint8_t Interesting() {
    constexpr std::array<std::uint8_t, 14> kValues = {0,  1,   2,   3,   4,   5,   7,
                                                      18, 127, 128, 129, 254, 255, 80};
    return Upto(3) == 0 ? static_cast<std::uint8_t>(Upto(255)) : kValues[Upto(kValues.size() - 1)];
  }

  std::uint8_t Type() {
    constexpr std::array<std::uint8_t, 6> kTypes = {255, 1, 2, 4, 0, 3};
    return kTypes[Upto(kTypes.size() - 1)];
  }

  void SetByte(std::size_t at, std::uint8_t value) {
    if (at < bytes_.size()) bytes_[at] = value;
  }

  // The words of the header up to the frame rate, and the count of events.
  void ChangeHeader() {
    constexpr std::size_t kWordsInFront = 24;
    constexpr std::size_t kEventCount = 300;
    SetByte(Upto(7) == 0 ? kEventCount : Upto(kWordsInFront - 1), Interesting());
  }

  // Puts the bytes of one record over those of another.
  void CopyRecord(const RecordPlace& from, const RecordPlace& to) {
    const std::size_t count = std::min(from.End - from.Start, to.End - to.Start);
    std::memmove(bytes_.data() + to.Start, bytes_.data() + from.Start, count);
  }

  Bytes& bytes_;
  std::mt19937 random_;
};

}  // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed) {
  if (seed % 4 == 0) return LLVMFuzzerMutate(data, size, maxSize);
  Bytes bytes(data, data + size);
  Mutation(bytes, seed).Apply();
  std::copy(bytes.begin(), bytes.end(), data);
  return size;
}
