// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <filesystem>
#include <fstream>
#include <span>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "deploy/ResourceFile.h"
#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/deploy/OwnSystem.h"

namespace {

namespace fs = std::filesystem;
using modWindowsFileInfo::FileTimes;
using tests::ErrorNumberOf;
using tests::ReadWholeFile;
using namespace std::chrono_literals;

// The system that this runs on, and a folder of its own.
class SystemHost : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  void Write(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
  }

  std::string Read(const std::string& name) const { return ReadWholeFile(folder_ / name); }

  tests::TemporaryFolder folder_;
  std::string shown_;
  tests::OwnSystem host_{[this](const std::string& text) { shown_ = text; }};
};

// A system that tells the program's path or, where that is empty, cannot.
class Told : public deploy::SystemHost {
 public:
  explicit Told(std::string programPath)
      : deploy::SystemHost(std::move(programPath), [](const std::string&) {}) {}

  std::string LowerCase(const std::string& text) const override { return text; }
  std::span<const std::byte> Resource(const std::string& /*type*/,
                                      const std::string& /*name*/) const override {
    return {};
  }
  FileTimes ReadTimes(const std::string& /*path*/) const override { return {}; }
  void SetTimes(const std::string& /*path*/, const FileTimes& /*times*/) override {}
  void StartProcess(const std::string& /*path*/, deploy::WindowState /*window*/) override {}
};

TEST_F(SystemHost, ThatCannotTellTheProgramsPathHasAnErrorPending) {
  EXPECT_TRUE(Told("").ErrorIsPending());
  EXPECT_FALSE(Told(Path("vantrel.exe")).ErrorIsPending());
}

TEST_F(SystemHost, KnowsTheProgramByItsWholePath) {
  const fs::path program = modAllPurpose::NativePath(host_.ProgramPath());
  EXPECT_TRUE(program.is_absolute());
  EXPECT_EQ(program.stem(), "deploy_tests");
  EXPECT_TRUE(fs::is_regular_file(program));
  EXPECT_FALSE(host_.ErrorIsPending());
}

TEST_F(SystemHost, SeparatesFoldersAsItsPathsDo) {
  EXPECT_NE(host_.ProgramPath().find(host_.FolderSeparator()), std::string::npos);
}

TEST_F(SystemHost, GivesTheBytesOfAResourceThatTheProgramCarries) {
  const auto bytes = host_.Resource("Dependencies", "dao360.dll");
  std::string content;
  for (const std::byte byte : bytes) content += static_cast<char>(byte);
  EXPECT_EQ(content, ReadWholeFile(fs::path(VANTREL_STAND_INS) / "dao360.dll"));
}

TEST_F(SystemHost, FailsForAResourceOfAnotherNameOrType) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.Resource("Dependencies", "other.dll"); }), 53);
  EXPECT_EQ(ErrorNumberOf([&] { host_.Resource("Manifest", "dao360.dll"); }), 53);
}

TEST_F(SystemHost, TellsFilesFromFolders) {
  Write("file", "text");
  EXPECT_TRUE(host_.FileExists(Path("file")));
  EXPECT_FALSE(host_.FileExists(Path("")));
  EXPECT_FALSE(host_.IsFolder(Path("file")));
  EXPECT_TRUE(host_.IsFolder(modAllPurpose::Utf8Path(folder_.Path())));
  EXPECT_FALSE(host_.IsFolder(Path("missing")));
}

TEST_F(SystemHost, MakesAFolderGivenWithItsSeparator) {
  host_.MakeFolder(Path("made") + host_.FolderSeparator());
  EXPECT_TRUE(fs::is_directory(folder_ / "made"));
}

TEST_F(SystemHost, MakesOneFolderAtATimeAndNoneOverAFile) {
  Write("file", "text");
  EXPECT_NE(
      ErrorNumberOf([&] { host_.MakeFolder(Path("missing") + host_.FolderSeparator() + "x"); }), 0);
  EXPECT_NE(ErrorNumberOf([&] { host_.MakeFolder(Path("file")); }), 0);
  EXPECT_EQ(Read("file"), "text");
}

TEST_F(SystemHost, DeletesAFileAndFailsForOneThatIsNotThere) {
  Write("file", "text");
  host_.RemoveFile(Path("file"));
  EXPECT_FALSE(fs::exists(folder_ / "file"));
  EXPECT_EQ(ErrorNumberOf([&] { host_.RemoveFile(Path("file")); }), 53);
}

TEST_F(SystemHost, DeletesNoFolder) {
  fs::create_directory(folder_ / "folder");
  EXPECT_NE(ErrorNumberOf([&] { host_.RemoveFile(Path("folder")); }), 0);
  EXPECT_TRUE(fs::is_directory(folder_ / "folder"));
}

TEST_F(SystemHost, ExtractsNoResourceOverAFolderAndKeepsIt) {
  for (const std::string name : {"gaitprobe.exe.manifest", "dao360.dll"}) {
    fs::create_directory(folder_ / name);
    const std::string type = name.ends_with(".dll") ? "Dependencies" : "Manifest";
    EXPECT_EQ(ErrorNumberOf([&] {
                modResourceFile::ExtractResourceToFile(host_, Path(""), name, type,
                                                       modResourceFile::Overwrite::No);
              }),
              75);
    EXPECT_TRUE(fs::is_directory(folder_ / name));
  }
}

TEST_F(SystemHost, CopiesOverAFileThatIsThere) {
  Write("from", "new");
  Write("to", "old and longer");
  host_.Copy(Path("from"), Path("to"));
  EXPECT_EQ(Read("to"), "new");
  EXPECT_EQ(Read("from"), "new");
}

TEST_F(SystemHost, FailsToCopyAFileThatIsNotThere) {
  Write("to", "old");
  EXPECT_EQ(ErrorNumberOf([&] { host_.Copy(Path("missing"), Path("to")); }), 53);
  EXPECT_EQ(Read("to"), "old");
}

TEST_F(SystemHost, FailsToCopyOverARunningProgram) {
  Write("from", "new");
  EXPECT_NE(ErrorNumberOf([&] { host_.Copy(Path("from"), host_.ProgramPath()); }), 0);
}

TEST_F(SystemHost, WritesEveryByteOfANewFile) {
  std::string content;
  for (int k = 0; k < 256; ++k) content += static_cast<char>(k);
  host_.WriteNewFile(Path("file"), std::as_bytes(std::span(content)));
  EXPECT_EQ(Read("file"), content);
}

TEST_F(SystemHost, FailsToWriteAFileIntoAFolderThatIsNotThere) {
  const std::string path = Path("missing") + host_.FolderSeparator() + "file";
  EXPECT_EQ(ErrorNumberOf([&] { host_.WriteNewFile(path, {}); }), 76);
}

TEST_F(SystemHost, WritesNoFileInPlaceOfWhatIsThere) {
  Write("file", "old");
  fs::create_directory(folder_ / "folder");
  for (const std::string name : {"file", "folder"}) {
    EXPECT_EQ(
        ErrorNumberOf([&] { host_.WriteNewFile(Path(name), std::as_bytes(std::span("new", 3))); }),
        75)
        << name;
  }
  EXPECT_EQ(Read("file"), "old");
  EXPECT_TRUE(fs::is_directory(folder_ / "folder"));
}

TEST_F(SystemHost, KnowsLettersInLowerCase) {
  EXPECT_EQ(host_.LowerCase("My Vantrel_FIX.EXE"), "my vantrel_fix.exe");
  EXPECT_EQ(host_.LowerCase(""), "");
}

TEST_F(SystemHost, NamesFilesInUtf8) {
  const std::string name = Path("") + "Gr\xC3\xBC\xC3\x9F \xE2\x82\xAC";
  host_.WriteNewFile(name, std::as_bytes(std::span("text", 4)));
  EXPECT_TRUE(host_.FileExists(name));
  EXPECT_TRUE(fs::exists(folder_.Path() / u8"Gr\u00FC\u00DF \u20AC"));
  EXPECT_NO_THROW(host_.ReadTimes(name));
  host_.RemoveFile(name);
  EXPECT_FALSE(host_.FileExists(name));
}

TEST_F(SystemHost, FailsForTheTimesOfAFileThatIsNotThere) {
  EXPECT_EQ(ErrorNumberOf([&] { host_.ReadTimes(Path("missing")); }), 53);
  EXPECT_EQ(ErrorNumberOf([&] { host_.SetTimes(Path("missing"), FileTimes{}); }), 53);
}

TEST_F(SystemHost, FailsToStartWhatIsNotThereOrNoProgram) {
  Write("text.exe", "text");
  const auto start = [&](const std::string& path) {
    return ErrorNumberOf([&] { host_.StartProcess(path, deploy::WindowState::NormalFocus); });
  };
  EXPECT_EQ(start(Path("missing.exe")), 53);
  EXPECT_NE(start(Path("text.exe")), 0);
}

TEST_F(SystemHost, WaitsAsLongAsItIsTold) {
  const auto start = std::chrono::steady_clock::now();
  host_.Wait(50ms);
  EXPECT_GE(std::chrono::steady_clock::now() - start, 50ms);
}

TEST_F(SystemHost, ShowsAMessage) {
  host_.ShowMessage("Error copying program file.");
  EXPECT_EQ(shown_, "Error copying program file.");
}

}  // namespace
