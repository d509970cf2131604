// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/deploy/FakeHost.h"

#include "support/RuntimeError.h"

namespace tests {

using deploy::WindowState;
using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;
using modWindowsFileInfo::FileTimes;

namespace {

void FailIfIn(const std::set<std::string>& failing, const std::string& path) {
  if (failing.contains(path)) throw RuntimeError(ErrorNumber::PathFileAccessError);
}

std::string WithoutSeparator(std::string path) {
  if (path.ends_with('\\')) path.pop_back();
  return path;
}

}  // namespace

const std::vector<std::string>& LibraryNames() {
  static const std::vector<std::string> kNames = {"comdlg32.ocx", "mscomct2.ocx", "mscomctl.ocx",
                                                  "richtx32.ocx", "tabctl32.ocx", "dao360.dll"};
  return kNames;
}

void AppendTimes(Steps& steps, int count, const Steps& more) {
  for (int k = 0; k < count; ++k) steps.insert(steps.end(), more.begin(), more.end());
}

void FakeHost::CarryEverything(FakeHost& host) {
  host.Files[host.Program] = "program";
  host.Resources["Manifest/vantrel.exe.manifest"] = "manifest";
  for (const auto& name : LibraryNames()) host.Resources["Dependencies/" + name] = "is " + name;
}

void FakeHost::PutEverythingInPlace(FakeHost& host) {
  host.Files[R"(C:\Gait\vantrel.exe.manifest)"] = "manifest";
  host.Folders.insert(R"(C:\Gait\Dependencies)");
  for (const auto& name : LibraryNames()) host.Files[R"(C:\Gait\Dependencies\)" + name] = name;
}

std::string FakeHost::LowerCase(const std::string& text) const {
  std::string lower;
  for (const char letter : text) {
    const auto byte = static_cast<unsigned char>(letter);
    const bool isUmlaut = lower.ends_with('\xC3') && byte >= 0x80 && byte <= 0x9E;
    const bool isCapital = isUmlaut || (letter >= 'A' && letter <= 'Z');
    lower += static_cast<char>(isCapital ? letter + ('a' - 'A') : letter);
  }
  return lower;
}

std::span<const std::byte> FakeHost::Resource(const std::string& type,
                                              const std::string& name) const {
  const auto found = Resources.find(type + "/" + name);
  if (found == Resources.end()) throw RuntimeError(ErrorNumber::FileNotFound);
  return std::as_bytes(std::span(found->second));
}

bool FakeHost::FileExists(const std::string& path) const {
  Looks.push_back(path);
  return Files.contains(path);
}

bool FakeHost::IsFolder(const std::string& path) const {
  Looks.push_back(path);
  return Folders.contains(path);
}

void FakeHost::MakeFolder(const std::string& path) {
  Step("make folder " + path);
  FailIfIn(Unwritable, path);
  Folders.insert(WithoutSeparator(path));
}

void FakeHost::RemoveFile(const std::string& path) {
  Step("delete " + path);
  FailIfIn(Undeletable, path);
  if (Files.erase(path) == 0) throw RuntimeError(ErrorNumber::FileNotFound);
}

void FakeHost::Copy(const std::string& from, const std::string& to) {
  Step("copy " + from + " to " + to);
  if (FailingCopies-- > 0) throw RuntimeError(ErrorNumber::PermissionDenied);
  const auto source = Files.find(from);
  if (source == Files.end()) throw RuntimeError(ErrorNumber::FileNotFound);
  Files[to] = source->second;
  if (const auto times = Times.find(from); times != Times.end()) Times[to] = times->second;
}

void FakeHost::WriteNewFile(const std::string& path, std::span<const std::byte> bytes) {
  Step("write " + path);
  if (!Folders.contains(WithoutSeparator(path.substr(0, path.rfind('\\') + 1)))) {
    throw RuntimeError(ErrorNumber::PathNotFound);
  }
  if (Files.contains(path) || Folders.contains(path)) {
    throw RuntimeError(ErrorNumber::PathFileAccessError);
  }
  FailIfIn(Unwritable, path);
  std::string content;
  for (const std::byte byte : bytes) content += static_cast<char>(byte);
  Files[path] = content;
}

FileTimes FakeHost::ReadTimes(const std::string& path) const {
  Step("read times " + path);
  if (ReadingTimesFails) throw RuntimeError(ErrorNumber::PathFileAccessError);
  return Times.at(path);
}

void FakeHost::SetTimes(const std::string& path, const FileTimes& times) {
  Step("set times " + path);
  if (SettingTimesFails) throw RuntimeError(ErrorNumber::PermissionDenied);
  Times[path] = times;
}

void FakeHost::StartProcess(const std::string& path, WindowState window) {
  Step("start " + path + (window == WindowState::NormalFocus ? " normal" : " minimised"));
  if (FailingStarts-- > 0) throw RuntimeError(ErrorNumber::FileNotFound);
}

void FakeHost::Wait(std::chrono::milliseconds time) {
  Step("wait " + std::to_string(time.count()) + " ms");
}

void FakeHost::ShowMessage(const std::string& text) { Step("message " + text); }

}  // namespace tests
