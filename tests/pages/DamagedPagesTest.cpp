// SPDX-License-Identifier: GPL-3.0-or-later

#include <rapidjson/document.h>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "c3d/OpenC3dFile.h"
#include "fuzz/MemoryTrial.h"
#include "gait/EventExtraction.h"
#include "pages/MakePages.h"
#include "pages/PageJson.h"
#include "sample/TrialBuilder.h"
#include "support/RuntimeError.h"
#include "tests/GaitTrials.h"

// Whatever happens to the bytes of a trial, its pages are values or a RuntimeError.
namespace {

using Bytes = std::vector<std::uint8_t>;

// A short trial with a stride, a label of each kind of panel and toe markers.
Bytes Walk(sample::Storage storage) {
  sample::TrialBuilder walk;
  walk.StoredAs(storage).Frames(1, 12).Rate(10);
  for (const char* label : {"LTOE", "RTOE", "LKneeAngles", "LHipMoment", "LHipPower"}) {
    walk.AddPoint(label, tests::Moving({0, 1, 2}, {3, 2, 1}));
  }
  tests::AddStrideEvents(walk, "Left", {0.1F, 0.2F, 0.5F, 0.6F, 1});
  walk.SetParam("POINT", sample::TextListParam("MOMENTS", {"LHipMoment"}));
  walk.SetParam("POINT", sample::TextParam("MOMENT_UNITS", "Nmm"));
  const sample::Trial trial = walk.Build();
  Bytes bytes;
  for (const std::byte byte : trial.Bytes()) {
    bytes.push_back(std::to_integer<std::uint8_t>(byte));
  }
  return bytes;
}

// All pages of the file at `path` as JSON; empty where it ends in an error.
std::string PagesOf(const std::string& path) {
  pages::TrialReading reading{{}, {"LTOE"}};
  for (const pages::PageInfo& page : pages::kPages) reading.Kinds.push_back(page.Kind);
  pages::PageChoice choice;
  choice.Kinds = reading.Kinds;
  modVantrel::FileState state;
  try {
    const auto result = modVantrel::OpenC3dFile(state, path, modVantrel::FindGaitEvents);
    if (result != modVantrel::OpenResult::Success) return {};
    const std::vector trials = {ReadTrialValues(state, reading)};
    return JsonOf(MakePages(trials, choice));
  } catch (const modAllPurpose::RuntimeError&) {
    return {};
  }
}

// How many inputs had pages; fails the test where those are no JSON.
class PageCount {
 public:
  void Try(std::span<const std::uint8_t> bytes, std::size_t at) {
    const std::string json = PagesOf(trial_.Fill(bytes));
    if (json.empty()) return;
    ++count_;
    rapidjson::Document document;
    EXPECT_FALSE(document.Parse(json.c_str()).HasParseError()) << "byte " << at;
  }

  int Count() const { return count_; }

 private:
  fuzz::MemoryTrial trial_;
  int count_ = 0;
};

void ChangeEachByte(Bytes bytes, std::uint8_t mask) {
  PageCount pages;
  pages.Try(bytes, 0);
  ASSERT_EQ(pages.Count(), 1) << "the whole file";
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const std::uint8_t own = bytes[i];
    bytes[i] = own ^ mask;
    pages.Try(bytes, i);
    bytes[i] = own;
  }
  EXPECT_GT(pages.Count(), 100) << "most bytes leave something to show";
}

TEST(DamagedPages, EachByteOfAFileOfFloatsInverted) {
  ChangeEachByte(Walk(sample::Storage::Single), 0xFF);
}

TEST(DamagedPages, EachHighBitOfAFileOfIntegers) {
  ChangeEachByte(Walk(sample::Storage::Integer), 0x80);
}

TEST(DamagedPages, EachLengthOfAFile) {
  const Bytes bytes = Walk(sample::Storage::Single);
  PageCount pages;
  for (std::size_t size = 0; size < bytes.size(); size += 7) {
    pages.Try(std::span(bytes).first(size), size);
  }
  EXPECT_LT(pages.Count(), 100) << "a file that is cut short has no pages";
}

}  // namespace
