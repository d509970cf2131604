// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/deploy/OwnSystem.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::Key;
using testing::UnorderedElementsAre;
using namespace std::chrono_literals;

constexpr auto kProgram = "gait probe.exe";
constexpr auto kFixer = "gait probe_Fix.exe";
constexpr auto kInTheWay = "gait probe_Fix.exe cannot copy yet";
constexpr auto kGoesOn = "gait probe.exe goes on";
#ifdef _WIN32
constexpr bool kTellsWindowState = true;
constexpr bool kCopyKeepsTime = true;
#else
constexpr bool kTellsWindowState = false;
constexpr bool kCopyKeepsTime = false;
#endif
constexpr auto kPatience = 60s;

struct FileState {
  std::string Content;
  fs::file_time_type LastWrite;

  friend bool operator==(const FileState&, const FileState&) = default;
};

// Every file below a folder by its path from there, the log aside.
using Files = std::map<std::string, FileState>;

// A copy of the program in a folder of its own, started as a process.
class HandOver : public testing::Test {
 protected:
  HandOver() {
    fs::create_directory(home_);
    fs::copy_file(VANTREL_GAIT_PROBE, home_ / kProgram);
  }

  // Starts the program, waits until it or its successor has gone on `times` times in all and every
  // process has ended.
  void StartUntilItWentOn(std::size_t times) {
    tests::OwnSystem system([](const std::string&) {});
    system.StartProcess(modAllPurpose::Utf8Path(home_ / kProgram),
                        deploy::WindowState::NormalFocus);
    Await([&] { return static_cast<std::size_t>(std::ranges::count(Log(), kGoesOn)) >= times; });
    Await([&] { return HasEnded(kProgram) && HasEnded(kFixer); });
  }

  void MoveTimeOfProgram(std::chrono::seconds by) const {
    const std::string program = modAllPurpose::Utf8Path(home_ / kProgram);
    auto times = modWindowsFileInfo::ReadFileTimes(program);
    times.LastWrite += by;
    modWindowsFileInfo::SetFileTimes(program, times);
  }

  // The lines of the log; however often the fixer met a program that had not ended yet, it is one
  // line.
  std::vector<std::string> Log() const {
    std::vector<std::string> lines;
    std::ifstream file(home_ / "log.txt");
    for (std::string line; std::getline(file, line);) {
      if (!lines.empty() && line == kInTheWay && lines.back() == kInTheWay) continue;
      lines.push_back(line);
    }
    return lines;
  }

  Files FilesNow() const {
    Files files;
    for (const auto& entry : fs::recursive_directory_iterator(home_)) {
      const auto name = fs::relative(entry.path(), home_).generic_string();
      if (!entry.is_regular_file() || name == "log.txt") continue;
      files[name] = {tests::ReadWholeFile(entry.path()), entry.last_write_time()};
    }
    return files;
  }

  tests::TemporaryFolder folder_;
  // A name with blanks and letters outside ASCII.
  const fs::path home_ = folder_ /
                         "Gr\xC3\xBC\xC3\x9F"
                         "e, \xE6\xAD\xA9\xE8\xA1\x8C an M\xC3\xBCller";

 private:
  template <typename Condition>
  static void Await(Condition&& condition) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!condition()) {
      ASSERT_LT(std::chrono::steady_clock::now(), end) << "the program did not get there";
      std::this_thread::sleep_for(10ms);
    }
  }

  // A program that runs cannot be opened for writing.
  bool HasEnded(const char* program) const {
    const fs::path file = home_ / program;
    return !fs::exists(file) || std::fstream(file, std::ios::in | std::ios::out).is_open();
  }
};

TEST_F(HandOver, WritesEverythingAndComesBackThroughTheFixer) {
  StartUntilItWentOn(1);
  const std::string program = kProgram;
  const std::string fixer = kFixer;
  std::vector<std::string> expected = {
      program + " copies " + program + " to " + fixer, program + " starts " + fixer, kInTheWay,
      fixer + " copies " + fixer + " to " + program,   fixer + " starts " + program, kGoesOn};
  if (kTellsWindowState) expected.insert(expected.begin() + 2, "gait probe_Fix.exe is minimised");
  EXPECT_EQ(Log(), expected);
  const Files files = FilesNow();
  EXPECT_EQ(files.at(kProgram).Content, tests::ReadWholeFile(VANTREL_GAIT_PROBE));
  const fs::path standIns = VANTREL_STAND_INS;
  EXPECT_EQ(files.at("gait probe.exe.manifest").Content,
            tests::ReadWholeFile(standIns / "gaitprobe.exe.manifest"));
  for (const char* library : {"comdlg32.ocx", "mscomct2.ocx", "mscomctl.ocx", "richtx32.ocx",
                              "tabctl32.ocx", "dao360.dll"}) {
    EXPECT_EQ(files.at(std::string("Dependencies/") + library).Content,
              tests::ReadWholeFile(standIns / library))
        << library;
  }
}

// A copy that does not keep the time is as new as the moment.
TEST_F(HandOver, LeavesTheProgramWithAnEarlierTimeWhereACopyKeepsItOrElseANewOne) {
  MoveTimeOfProgram(-24h);
  const auto before = FilesNow().at(kProgram).LastWrite;
  StartUntilItWentOn(1);
  const auto after = FilesNow().at(kProgram).LastWrite;
  if (kCopyKeepsTime) {
    EXPECT_EQ(after, before - 864s);
  } else {
    EXPECT_GT(after, before + 23h);
  }
}

TEST_F(HandOver, IsDoneOnceAndLeavesNoFixerBehind) {
  StartUntilItWentOn(1);
  Files before = FilesNow();
  before.erase(kFixer);  // still there where the system keeps running programs from being deleted
  auto log = Log();
  StartUntilItWentOn(2);
  log.emplace_back(kGoesOn);
  EXPECT_EQ(Log(), log);
  EXPECT_EQ(FilesNow(), before);
}

TEST_F(HandOver, IsSwitchedOffByTheMarkerFile) {
  std::ofstream(home_ / "gait probe.exe.manifest1") << "";
  StartUntilItWentOn(1);
  EXPECT_THAT(Log(), ElementsAre(kGoesOn));
  EXPECT_THAT(FilesNow(), UnorderedElementsAre(Key(kProgram), Key("gait probe.exe.manifest1")));
}

}  // namespace
