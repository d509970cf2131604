// SPDX-License-Identifier: GPL-3.0-or-later

#include <array>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "c3d/BinaryFile.h"
#include "c3d/OpenC3dFile.h"
#include "tests/TestTrials.h"

namespace {

using modVantrel::BinaryFile;
using tests::ErrorNumberOf;

constexpr int kNoError = 0;
using tests::kBadRecordNumber;
using tests::kFileNotFound;
using tests::kInputPastEndOfFile;
using tests::kPathFileAccessError;
using tests::kPathNotFound;

// Every byte of the file tells its own place: the byte at position p is (p - 1) modulo 251.
std::uint8_t ByteAt(std::int32_t position) {
  return static_cast<std::uint8_t>((position - 1) % 251);
}

class BinaryFileTest : public testing::Test {
 protected:
  void GivenFileOf(std::int32_t size) {
    std::string bytes;
    for (std::int32_t position = 1; position <= size; ++position) {
      bytes += static_cast<char>(ByteAt(position));
    }
    std::ofstream(path_, std::ios::binary) << bytes;
    file_.Open(path_.string());
  }

  void ExpectBytesFrom(std::int32_t position, std::size_t count) {
    const auto bytes = file_.Read(count);
    ASSERT_EQ(bytes.size(), count);
    for (std::size_t i = 0; i < count; ++i) {
      ASSERT_EQ(std::to_integer<std::uint8_t>(bytes[i]),
                ByteAt(position + static_cast<std::int32_t>(i)));
    }
  }

  tests::TemporaryFolder folder_;
  std::filesystem::path path_ = folder_ / "bytes";
  BinaryFile file_;
};

TEST_F(BinaryFileTest, StandsAtPosition1AfterOpening) {
  GivenFileOf(10);
  EXPECT_EQ(file_.Position(), 1);
  EXPECT_EQ(file_.ReadByte(), ByteAt(1));
  EXPECT_EQ(file_.Position(), 2);
}

TEST_F(BinaryFileTest, OpeningAnotherFileForgetsTheFirst) {
  GivenFileOf(10);
  file_.Seek(5);
  file_.ReadByte();
  std::ofstream(folder_ / "other", std::ios::binary) << "other";
  file_.Open((folder_ / "other").string());
  EXPECT_EQ(file_.ReadText(5), "other");
}

TEST_F(BinaryFileTest, IsHandedOnWithItsFileAndItsPlace) {
  GivenFileOf(10);
  file_.Seek(4);
  BinaryFile next(std::move(file_));
  EXPECT_EQ(next.ReadByte(), ByteAt(4));
  EXPECT_EQ(next.Position(), 5);
}

TEST_F(BinaryFileTest, ReadsAcrossTheBordersOfItsBuffer) {
  constexpr auto kBorder = static_cast<std::int32_t>(BinaryFile::kDefaultReadAhead);
  GivenFileOf(3 * kBorder);
  file_.ReadByte();
  for (const std::int32_t position : {kBorder - 1, kBorder, kBorder + 1, 2 * kBorder - 3}) {
    file_.Seek(position);
    ExpectBytesFrom(position, 8);
    EXPECT_EQ(file_.Position(), position + 8);
  }
}

TEST_F(BinaryFileTest, ReadsMoreThanItsBufferInOnePiece) {
  constexpr auto kMore = BinaryFile::kDefaultReadAhead + 1000;
  GivenFileOf(static_cast<std::int32_t>(kMore));
  ExpectBytesFrom(1, kMore);
}

TEST_F(BinaryFileTest, ReadsBackwardsAndForwards) {
  GivenFileOf(1000);
  for (const std::int32_t position : {900, 1, 1000, 500, 2}) {
    file_.Seek(position);
    EXPECT_EQ(file_.ReadByte(), ByteAt(position));
  }
}

TEST_F(BinaryFileTest, ReadsTheSameBytesWithAnyReadAhead) {
  GivenFileOf(500);
  for (const std::size_t bytes : {0U, 1U, 7U, 100U, 10000U}) {
    const BinaryFile::ReadAhead readAhead(file_, bytes);
    file_.ForgetBuffer();
    file_.Seek(1);
    for (std::int32_t position = 1; position + 4 <= 500; position += 5) {
      ExpectBytesFrom(position, 5);
    }
  }
}

TEST_F(BinaryFileTest, SmallReadAheadFetchesNoMoreThanAsked) {
  GivenFileOf(100);
  const BinaryFile::ReadAhead readAhead(file_, 4);
  file_.Read(4);
  std::filesystem::resize_file(path_, 4);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadByte(); }), kInputPastEndOfFile);
}

TEST_F(BinaryFileTest, ReadAheadRestoresTheFormerOne) {
  GivenFileOf(100);
  { const BinaryFile::ReadAhead readAhead(file_, 1); }
  file_.ReadByte();
  std::filesystem::resize_file(path_, 1);
  EXPECT_EQ(file_.ReadByte(), ByteAt(2)) << "bytes were read ahead again";
}

TEST_F(BinaryFileTest, ReadPastTheEndIsError62) {
  GivenFileOf(10);
  file_.Seek(10);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadInteger(); }), kInputPastEndOfFile);
  file_.Seek(8);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadSingleBits(); }), kInputPastEndOfFile);
  file_.Seek(11);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadByte(); }), kInputPastEndOfFile);
  file_.Seek(1);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadText(11); }), kInputPastEndOfFile);
}

TEST_F(BinaryFileTest, ReadPastTheEndMovesNothing) {
  GivenFileOf(10);
  file_.Seek(9);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadSingleBits(); }), kInputPastEndOfFile);
  EXPECT_EQ(file_.Position(), 9);
  EXPECT_EQ(file_.ReadByte(), ByteAt(9));
}

TEST_F(BinaryFileTest, AClaimBeyondMemoryIsError62) {
  GivenFileOf(10);
  constexpr std::uint64_t kHuge = std::uint64_t{1} << 62U;
  EXPECT_EQ(ErrorNumberOf([this] { file_.Read(kHuge); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([this] { file_.Skip(kHuge); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([this] { file_.RequireLeft(UINT64_MAX); }), kInputPastEndOfFile);
}

TEST_F(BinaryFileTest, EmptyFileHasNothingToRead) {
  GivenFileOf(0);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadByte(); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([this] { file_.RequireLeft(0); }), kNoError);
}

TEST_F(BinaryFileTest, PositionBelow1IsError63) {
  GivenFileOf(10);
  for (const std::int32_t position : {0, -1, -511, INT32_MIN}) {
    EXPECT_EQ(ErrorNumberOf([&] { file_.Seek(position); }), kBadRecordNumber) << position;
  }
  EXPECT_EQ(file_.ReadByte(), ByteAt(1)) << "a refused position changes nothing";
}

TEST_F(BinaryFileTest, PositionPastTheEndFailsOnlyWhenRead) {
  GivenFileOf(10);
  for (const std::int32_t position : {11, 100000, INT32_MAX}) {
    file_.Seek(position);
    EXPECT_EQ(file_.Position(), position);
    EXPECT_EQ(ErrorNumberOf([this] { file_.ReadByte(); }), kInputPastEndOfFile);
  }
}

TEST_F(BinaryFileTest, PositionThat32BitsCannotHoldIsError6) {
  GivenFileOf(1);
  std::filesystem::resize_file(path_, std::uintmax_t{1} << 32U);
  file_.Seek(INT32_MAX);
  file_.Skip(1);
  EXPECT_EQ(ErrorNumberOf([this] { file_.Position(); }), 6);
}

TEST_F(BinaryFileTest, SkipStopsAtTheEndOfTheFile) {
  GivenFileOf(10);
  file_.Skip(4);
  EXPECT_EQ(file_.ReadByte(), ByteAt(5));
  EXPECT_EQ(ErrorNumberOf([this] { file_.Skip(6); }), kInputPastEndOfFile);
  EXPECT_EQ(file_.Position(), 6);
  file_.Skip(5);
  EXPECT_EQ(file_.Position(), 11);
}

TEST_F(BinaryFileTest, AFileThatShrankIsError62) {
  GivenFileOf(200000);
  file_.ReadByte();
  std::filesystem::resize_file(path_, 100);
  file_.Seek(150000);
  EXPECT_EQ(ErrorNumberOf([this] { file_.ReadByte(); }), kInputPastEndOfFile);
  EXPECT_EQ(ErrorNumberOf([this] { file_.Skip(1); }), kInputPastEndOfFile);
}

TEST_F(BinaryFileTest, ForgottenBufferSeesTheFileAsItIsNow) {
  GivenFileOf(10);
  EXPECT_EQ(file_.ReadByte(), ByteAt(1));
  std::ofstream(path_, std::ios::binary) << "changed";
  file_.ForgetBuffer();
  file_.Seek(1);
  EXPECT_EQ(file_.ReadText(7), "changed");
}

TEST_F(BinaryFileTest, TextsAreWindows1252) {
  std::ofstream(path_, std::ios::binary) << "\x80"
                                         << "M\xFC\x6C";
  file_.Open(path_.string());
  EXPECT_EQ(file_.ReadText(4), "\u20ACM\u00FCl");
}

TEST_F(BinaryFileTest, RefusesWhatIsNoFile) {
  const auto errorOf = [this](const std::string& path) {
    return ErrorNumberOf([&] { file_.Open(path); });
  };
  EXPECT_EQ(errorOf(folder_.Path().string()), kPathFileAccessError) << "a folder";
  EXPECT_EQ(errorOf((folder_ / "missing").string()), kFileNotFound);
  EXPECT_EQ(errorOf(""), kFileNotFound);
  GivenFileOf(1);
  EXPECT_EQ(errorOf((path_ / "below a file").string()), kPathNotFound);
  EXPECT_FALSE(file_.IsOpen());
}

}  // namespace
