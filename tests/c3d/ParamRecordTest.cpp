// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/ParameterSection.h"
#include "tests/TestTrials.h"

namespace {

using namespace modVantrel;
using tests::ErrorNumberOf;

using Bytes = std::vector<std::uint8_t>;

constexpr int kNoError = 0;
using tests::kBadRecordNumber;
using tests::kInputPastEndOfFile;
using tests::kSubscriptOutOfRange;

Bytes operator+(Bytes left, const Bytes& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Bytes Text(const std::string& text) { return {text.begin(), text.end()}; }

// A file that holds records alone, the first one at position 1.
class ParamRecordTest : public testing::Test {
 protected:
  void Given(const Bytes& bytes) {
    const std::filesystem::path path = folder_ / "records";
    tests::TakeAway(path);
    std::ofstream(path, std::ios::binary) << std::string(bytes.begin(), bytes.end());
    state_.C3dFileNumber.Open(path.string());
    state_.SeekPtrForFirstC3dParam = 1;
    state_.ProcessorType = kProcessorIntel;
  }

  ParamRecord Read(bool stopAtEnd = true) { return ReadParamRecord(state_, 1, stopAtEnd, isLast_); }

  ParamRecord Reading(const Bytes& bytes) {
    Given(bytes);
    return Read();
  }

  int ErrorOfReading(const Bytes& bytes) {
    return ErrorNumberOf([&] { Reading(bytes); });
  }

  // A parameter named X of group 1 with no description, the last of its chain.
  static Bytes Param(std::uint8_t type, const Bytes& dimensions, const Bytes& data) {
    return Bytes{1, 1, 'X', 0, 0, type, static_cast<std::uint8_t>(dimensions.size())} + dimensions +
           data + Bytes{0};
  }

  tests::TemporaryFolder folder_;
  FileState state_;
  bool isLast_ = false;
};

TEST_F(ParamRecordTest, AGroupHasNameNumberAndDescriptionOnly) {
  const ParamRecord group = Reading({
      5, 0xFE,                  // name length, group 2
      'P', 'O', 'I', 'N', 'T',  // name
      0, 0,                     // offset: the last record
      3, 'a', ' ', 'b'          // description
  });
  EXPECT_TRUE(group.IsGroup());
  EXPECT_EQ(group.Id, 2);
  EXPECT_EQ(group.NameLength, 5);
  EXPECT_EQ(group.Name, "POINT");
  EXPECT_FALSE(group.Locked);
  EXPECT_EQ(group.DataType, kNoData);
  EXPECT_EQ(group.Dimensions, (std::array<std::uint8_t, 7>{}));
  EXPECT_EQ(group.DescriptionLength, 3);
  EXPECT_EQ(group.Description, "a b");
  EXPECT_EQ(group.NextPosition, 0);
  EXPECT_TRUE(isLast_);
}

TEST_F(ParamRecordTest, ALockedParameterReadsLikeAnUnlockedOne) {
  const Bytes rest = {3, 'U', 'S', 'E', 'D', 0, 0, 2, 0, 0x34, 0x12, 2, 'd', 'd'};
  const ParamRecord open = Reading(Bytes{4} + rest);
  const ParamRecord locked = Reading(Bytes{0xFC} + rest);  // -4
  EXPECT_FALSE(open.Locked);
  EXPECT_TRUE(locked.Locked);
  for (const ParamRecord& record : {open, locked}) {
    EXPECT_TRUE(record.IsParam());
    EXPECT_EQ(record.NameLength, 4);
    EXPECT_EQ(record.Id, 3);
    EXPECT_EQ(record.Name, "USED");
    EXPECT_EQ(record.IntegerValues.At(FirstElement()), 0x1234);
    EXPECT_EQ(record.Description, "dd");
  }
}

TEST_F(ParamRecordTest, ALockedGroupReadsLikeAnUnlockedOne) {
  const ParamRecord group = Reading({0xFF, 0xFF, 'A', 0, 0, 0});
  EXPECT_TRUE(group.Locked);
  EXPECT_TRUE(group.IsGroup());
  EXPECT_EQ(group.Name, "A");
  EXPECT_EQ(group.Id, 1);
}

TEST_F(ParamRecordTest, ANameLengthOf128IsALockedEmptyName) {
  const ParamRecord group = Reading({128, 0xFF, 0, 0, 0});
  EXPECT_TRUE(group.Locked);
  EXPECT_EQ(group.NameLength, 0);
  EXPECT_EQ(group.Name, "");
}

TEST_F(ParamRecordTest, NameAndDescriptionLoseTheirBlanks) {
  const ParamRecord group = Reading({4, 0xFF, ' ', 'A', 'B', ' ', 0, 0, 3, ' ', 'd', ' '});
  EXPECT_EQ(group.Name, "AB");
  EXPECT_EQ(group.NameLength, 4);
  EXPECT_EQ(group.Description, "d");
}

TEST_F(ParamRecordTest, TextsAreWindows1252) {
  const ParamRecord param = Reading({2, 1, 'G', 0xE4, 0, 0, 0xFF, 1, 2, 0x80, 0xDF, 1, 0xB0});
  EXPECT_EQ(param.Name, "G\u00E4");
  EXPECT_EQ(param.TextValues.At(FirstElement()), "\u20AC\u00DF");
  EXPECT_EQ(param.Description, "\u00B0");
}

TEST_F(ParamRecordTest, AnIdOf0Or128GivesAnEmptyRecordAndLeavesIsLastAlone) {
  for (const std::uint8_t id : Bytes{0, 128}) {
    for (const bool isLast : {false, true}) {
      isLast_ = isLast;
      const ParamRecord record = Reading({1, id, 'A', 9, 0, 1, 'd'});
      EXPECT_EQ(record.Id, 0);
      EXPECT_EQ(record.NameLength, 0);
      EXPECT_EQ(record.Name, "");
      EXPECT_EQ(record.RecordType, 0);
      EXPECT_EQ(record.NextPosition, 0);
      EXPECT_EQ(isLast_, isLast);
    }
  }
}

TEST_F(ParamRecordTest, AnEndRecordNeedsNoMoreThanItsTwoBytes) {
  EXPECT_EQ(Reading({0, 0}).Id, 0);
  EXPECT_EQ(ErrorOfReading({0}), kInputPastEndOfFile);
}

TEST_F(ParamRecordTest, IdsTellGroupsFromParameters) {
  const auto rest = Bytes{0, 0, 0, 0, 0, 0, 0};
  EXPECT_TRUE(Reading(Bytes{0, 127} + rest).IsParam());
  EXPECT_EQ(Read().Id, 127);
  EXPECT_TRUE(Reading(Bytes{0, 129} + rest).IsGroup());
  EXPECT_EQ(Read().Id, 127);
  EXPECT_TRUE(Reading(Bytes{0, 255} + rest).IsGroup());
  EXPECT_EQ(Read().Id, 1);
}

TEST_F(ParamRecordTest, AParameterWithoutDimensionsHoldsOneValue) {
  EXPECT_EQ(Reading(Param(kByteData, {}, {200})).ByteValues.At(FirstElement()), 200);
  EXPECT_EQ(Reading(Param(kIntegerData, {}, {0xFF, 0xFF})).IntegerValues.At(FirstElement()), -1);
  EXPECT_EQ(Reading(Param(kSingleData, {}, {0, 0, 0x20, 0xC0})).SingleValues.At(FirstElement()),
            -2.5F);
  for (const std::uint8_t size : Read().Dimensions) EXPECT_EQ(size, 1);
}

TEST_F(ParamRecordTest, ACharacterParameterWithoutDimensionsHoldsOneStringOfLength1) {
  const ParamRecord param = Reading(Param(kTextData, {}, {'Y'}));
  EXPECT_EQ(param.TextValues.At(FirstElement()), "Y");
  EXPECT_EQ(param.TextValues.Count(), 1U);
  EXPECT_EQ(param.DimensionCount, 0);
}

TEST_F(ParamRecordTest, TheFirstDimensionOfACharacterParameterIsTheLengthOfItsStrings) {
  const ParamRecord param = Reading(Param(kTextData, {3, 2, 2}, Text("a  bb  ccd d")));
  EXPECT_EQ(param.Dimensions, (std::array<std::uint8_t, 7>{2, 2, 1, 1, 1, 1, 1}));
  EXPECT_EQ(param.TextValues.At(ElementAt(1, 1)), "a");
  EXPECT_EQ(param.TextValues.At(ElementAt(2, 1)), "bb");
  EXPECT_EQ(param.TextValues.At(ElementAt(1, 2)), "cc");
  EXPECT_EQ(param.TextValues.At(ElementAt(2, 2)), "d d");
  EXPECT_EQ(ErrorNumberOf([&] { param.TextValues.At(ElementAt(3, 1)); }), kSubscriptOutOfRange);
}

TEST_F(ParamRecordTest, InTheFileTheFirstIndexRunsFastest) {
  const ParamRecord param = Reading(Param(kByteData, {2, 3}, {11, 21, 12, 22, 13, 23}));
  for (std::int32_t j = 1; j <= 3; ++j) {
    for (std::int32_t i = 1; i <= 2; ++i) {
      EXPECT_EQ(param.ByteValues.At(ElementAt(i, j)), 10 * i + j);
    }
  }
}

TEST_F(ParamRecordTest, EverySetOfDimensionsUpTo7ReadsFirstIndexFastest) {
  Bytes dimensions;
  for (std::size_t count = 0; count <= kMostDimensions; ++count) {
    Bytes data;
    for (std::size_t i = 0; i < (std::size_t{1} << count); ++i) {
      data.push_back(static_cast<std::uint8_t>(i));
    }
    const ParamRecord param = Reading(Param(kByteData, dimensions, data));
    ElementIndices last = FirstElement();
    std::fill_n(last.begin(), count, 2);
    EXPECT_EQ(param.ByteValues.At(last), data.back()) << count;
    for (std::size_t k = 0; k < count; ++k) {
      ElementIndices one = FirstElement();
      one.at(k) = 2;
      EXPECT_EQ(param.ByteValues.At(one), 1U << k) << count << " dimensions, index " << k + 1;
    }
    dimensions.push_back(2);
  }
}

TEST_F(ParamRecordTest, ADimensionOf0MeansNoDataAndTheDescriptionFollows) {
  for (const std::uint8_t type : Bytes{kTextData, kByteData, kIntegerData, kSingleData}) {
    for (const Bytes& dimensions : {Bytes{0}, Bytes{4, 0}, Bytes{0, 255, 255}}) {
      Bytes bytes = Param(type, dimensions, {});
      bytes.back() = 1;
      const ParamRecord param = Reading(bytes + Text("d"));
      EXPECT_EQ(param.DataType, kNoData);
      EXPECT_EQ(param.Description, "d");
      EXPECT_EQ(ErrorNumberOf([&] { param.TextValues.At(FirstElement()); }), kSubscriptOutOfRange);
      EXPECT_EQ(ErrorNumberOf([&] { param.ByteValues.At(FirstElement()); }), kSubscriptOutOfRange);
      EXPECT_EQ(ErrorNumberOf([&] { param.IntegerValues.At(FirstElement()); }),
                kSubscriptOutOfRange);
      EXPECT_EQ(ErrorNumberOf([&] { param.SingleValues.At(FirstElement()); }),
                kSubscriptOutOfRange);
    }
  }
}

TEST_F(ParamRecordTest, AnUnknownTypeReadsTheDescriptionWhereDataWouldBegin) {
  for (const std::uint8_t type : Bytes{0, 3, 5, 127, 128, 254}) {
    const ParamRecord param = Reading({1, 1, 'X', 0, 0, type, 2, 9, 9, 2, 'o', 'k'});
    EXPECT_EQ(param.DataType, type);
    EXPECT_EQ(param.Description, "ok");
    EXPECT_EQ(ErrorNumberOf([&] { param.ByteValues.At(FirstElement()); }), kSubscriptOutOfRange);
  }
}

TEST_F(ParamRecordTest, OnlyTheArrayOfItsTypeIsFilled) {
  const ParamRecord param = Reading(Param(kIntegerData, {}, {7, 0}));
  EXPECT_EQ(ErrorNumberOf([&] { param.TextValues.At(FirstElement()); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { param.ByteValues.At(FirstElement()); }), kSubscriptOutOfRange);
  EXPECT_EQ(ErrorNumberOf([&] { param.SingleValues.At(FirstElement()); }), kSubscriptOutOfRange);
}

TEST_F(ParamRecordTest, IndicesBelow1AndAboveTheSizeAreError9) {
  const ParamRecord param = Reading(Param(kByteData, {2}, {1, 2}));
  for (const std::int32_t index : {-1, 0, 3}) {
    EXPECT_EQ(ErrorNumberOf([&] { param.ByteValues.At(ElementAt(index)); }), kSubscriptOutOfRange);
  }
  EXPECT_EQ(ErrorNumberOf([&] { param.ByteValues.At(ElementAt(1, 2)); }), kSubscriptOutOfRange);
}

TEST_F(ParamRecordTest, FloatsOfADecFileAreConvertedAndIntegersAreNot) {
  Given(Param(kSingleData, {}, {0x42, 0x43, 0, 0}));
  state_.ProcessorType = kProcessorDec;
  EXPECT_EQ(Read().SingleValues.At(FirstElement()), 48.5F);
  Given(Param(kIntegerData, {2}, {0x42, 0x43, 0, 1}));
  state_.ProcessorType = kProcessorDec;
  EXPECT_EQ(Read().IntegerValues.At(ElementAt(1)), 0x4342);
  EXPECT_EQ(Read().IntegerValues.At(ElementAt(2)), 0x0100);
}

TEST_F(ParamRecordTest, MoreThan7DimensionsAreError9) {
  for (const std::uint8_t type : Bytes{kTextData, kByteData, kIntegerData, kSingleData}) {
    EXPECT_EQ(ErrorOfReading(Param(type, Bytes(8, 1), Bytes(8))), kSubscriptOutOfRange);
    EXPECT_EQ(ErrorOfReading(Param(type, Bytes(255, 1), Bytes(8))), kSubscriptOutOfRange);
  }
}

TEST_F(ParamRecordTest, MoreThan7DimensionsInAFileThatEndsWithinTheFirst7AreError62) {
  const Bytes front = {1, 1, 'X', 0, 0, kByteData, 8};
  EXPECT_EQ(ErrorOfReading(front + Bytes(6, 1)), kInputPastEndOfFile);
  EXPECT_EQ(ErrorOfReading(front + Bytes(7, 1)), kSubscriptOutOfRange);
}

TEST_F(ParamRecordTest, SevenDimensionsOf255AreError62AtOnce) {
  for (const std::uint8_t type : Bytes{kTextData, kByteData, kIntegerData, kSingleData}) {
    Given(Param(type, Bytes(7, 255), Bytes(1000)));
    for (const Values values : {Values::Read, Values::Skip}) {
      EXPECT_EQ(ErrorNumberOf([&] { ReadParamRecord(state_, 1, true, isLast_, values); }),
                kInputPastEndOfFile);
    }
  }
}

TEST_F(ParamRecordTest, DataThatTheFileCannotFillAreError62WithOrWithoutTheirValues) {
  Given({1, 1, 'X', 0, 0, kSingleData, 1, 2, 0, 0, 0, 0, 0, 0, 0});
  for (const Values values : {Values::Read, Values::Skip}) {
    EXPECT_EQ(ErrorNumberOf([&] { ReadParamRecord(state_, 1, true, isLast_, values); }),
              kInputPastEndOfFile);
  }
}

TEST_F(ParamRecordTest, ADescriptionLengthIsTheMagnitudeOfASignedByte) {
  EXPECT_EQ(Reading({1, 0xFF, 'A', 0, 0, 0x80, 'd'}).Description, "");
  EXPECT_EQ(Reading({1, 0xFF, 'A', 0, 0, 0xFE, 'd', 'e', 'f'}).Description, "de");
  const ParamRecord longest = Reading(Bytes{1, 0xFF, 'A', 0, 0, 0x81} + Bytes(127, 'd'));
  EXPECT_EQ(longest.Description, std::string(127, 'd'));
  EXPECT_EQ(longest.DescriptionLength, 127);
}

TEST_F(ParamRecordTest, NextPositionCountsFromTheOffsetWord) {
  Given({1, 0xFF, 'A', 5, 0, 0, '-', '-', 1, 0xFE, 'B', 0, 0, 0});
  EXPECT_EQ(Read().NextPosition, 9);
  EXPECT_FALSE(isLast_);
  EXPECT_EQ(ReadParamRecordAt(state_, 9).Name, "B");
}

TEST_F(ParamRecordTest, AnOffsetOf2LeadsToTheByteBehindTheOffsetWord) {
  Given({1, 0xFF, 'A', 2, 0, 1, 0xFE, 'B', 0, 0, 0});
  const ParamRecord record = Read();
  EXPECT_EQ(record.NextPosition, 6);
  EXPECT_EQ(record.Description, "\u00FE");
  EXPECT_EQ(ReadParamRecordAt(state_, record.NextPosition).Name, "B");
}

TEST_F(ParamRecordTest, AnOffsetBelow2EndsTheChain) {
  for (const Bytes& offset : {Bytes{0, 0}, Bytes{1, 0}, Bytes{0xFF, 0xFF}, Bytes{0, 0x80}}) {
    isLast_ = false;
    // A description, since its length stands where an offset of 1 would find an id.
    Given(Bytes{1, 0xFF, 'A'} + offset + Bytes{1, 'D', 1, 1});
    EXPECT_EQ(Read().NextPosition, 0);
    EXPECT_TRUE(isLast_);
  }
}

TEST_F(ParamRecordTest, ANextRecordOfId0Or128EndsTheChain) {
  for (const std::uint8_t id : Bytes{0, 128}) {
    isLast_ = false;
    Given({1, 0xFF, 'A', 3, 0, 0, 7, id});
    EXPECT_EQ(Read().NextPosition, 0);
    EXPECT_TRUE(isLast_);
  }
}

TEST_F(ParamRecordTest, WithoutStopAtEndTheLastRecordKeepsItsNextPosition) {
  Given({1, 0xFF, 'A', 3, 0, 0, 0, 0});
  EXPECT_EQ(Read(false).NextPosition, 7);
  EXPECT_TRUE(isLast_);
}

TEST_F(ParamRecordTest, ANextRecordPastTheEndOfTheFileIsError62) {
  EXPECT_EQ(ErrorOfReading({1, 0xFF, 'A', 3, 0, 0, 7}), kInputPastEndOfFile);
  EXPECT_EQ(ErrorOfReading({1, 0xFF, 'A', 0xFF, 0x7F, 0}), kInputPastEndOfFile);
}

TEST_F(ParamRecordTest, EveryPrefixOfARecordIsError62) {
  const Bytes record = {1, 1, 'X', 0, 0, kIntegerData, 1, 2, 1, 0, 2, 0, 2, 'o', 'k'};
  for (std::size_t size = 0; size < record.size(); ++size) {
    const Bytes prefix(record.begin(), record.begin() + static_cast<std::ptrdiff_t>(size));
    EXPECT_EQ(ErrorOfReading(prefix), kInputPastEndOfFile) << size;
  }
  EXPECT_EQ(ErrorOfReading(record), kNoError);
}

TEST_F(ParamRecordTest, APositionBelow1IsError63) {
  Given({1, 0xFF, 'A', 0, 0, 0});
  for (const std::int32_t position : {0, -1}) {
    EXPECT_EQ(ErrorNumberOf([&] { ReadParamRecordAt(state_, position); }), kBadRecordNumber);
  }
}

}  // namespace
