// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "deploy/Host.h"

namespace tests {

// A system in memory. It keeps files, folders and resources in tables, does what it is told to
// fail, and writes down every step that changes something or takes time, and each reading
// of file times; it never waits.
class FakeHost : public deploy::Host {
 public:
  // What a test sets up and looks at.
  std::string Program = R"(C:\Gait\vantrel.exe)";
  bool Pending = false;
  std::map<std::string, std::string> Files;  // content by path
  std::set<std::string> Folders = {R"(C:\Gait)"};
  std::map<std::string, std::string> Resources;  // content by "type/name"
  std::map<std::string, modWindowsFileInfo::FileTimes> Times;
  mutable std::vector<std::string> Steps;
  mutable std::vector<std::string> Looks;  // every path that was asked about

  // What fails: so many copies and starts from now on, making these files and folders, deleting
  // these files, reading file times and setting them.
  int FailingCopies = 0;
  int FailingStarts = 0;
  std::set<std::string> Unwritable;
  std::set<std::string> Undeletable;
  bool ReadingTimesFails = false;
  bool SettingTimesFails = false;

  // A program file and all the resources that it carries, nothing beside it.
  static void CarryEverything(FakeHost& host);
  // The manifest and the six libraries in their places.
  static void PutEverythingInPlace(FakeHost& host);

  char FolderSeparator() const override { return '\\'; }
  // Of ASCII letters and the German ones.
  std::string LowerCase(const std::string& text) const override;
  std::string ProgramPath() const override { return Program; }
  bool ErrorIsPending() const override { return Pending; }
  std::span<const std::byte> Resource(const std::string& type,
                                      const std::string& name) const override;
  bool FileExists(const std::string& path) const override;
  bool IsFolder(const std::string& path) const override;
  void MakeFolder(const std::string& path) override;
  void RemoveFile(const std::string& path) override;
  void Copy(const std::string& from, const std::string& to) override;
  void WriteNewFile(const std::string& path, std::span<const std::byte> bytes) override;
  modWindowsFileInfo::FileTimes ReadTimes(const std::string& path) const override;
  void SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) override;
  void StartProcess(const std::string& path, deploy::WindowState window) override;
  void Wait(std::chrono::milliseconds time) override;
  void ShowMessage(const std::string& text) override;

 private:
  void Step(const std::string& step) const { Steps.push_back(step); }
};

// What a host was asked to do, in order.
using Steps = std::vector<std::string>;

// Appends `more` to `steps`, `count` times over.
void AppendTimes(Steps& steps, int count, const Steps& more);

// The file names of the six libraries, in the order in which they are looked for.
const std::vector<std::string>& LibraryNames();

}  // namespace tests
