// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/deploy/PosixHost.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <spawn.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "tests/deploy/StandIns.h"

namespace tests {

namespace {

std::string PathOfThisProgram() {
  std::error_code unknown;
  return modAllPurpose::Utf8Path(std::filesystem::read_symlink("/proc/self/exe", unknown));
}

}  // namespace

PosixHost::PosixHost(deploy::MessageShower showMessage)
    : SystemHost(PathOfThisProgram(), std::move(showMessage)) {}

std::string PosixHost::LowerCase(const std::string& text) const {
  std::string lower = text;
  for (char& letter : lower) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return lower;
}

std::span<const std::byte> PosixHost::Resource(const std::string& type,
                                               const std::string& name) const {
  const auto standIns = StandIns();
  const auto found = std::ranges::find_if(standIns, [&](const StandIn& standIn) {
    return standIn.Type == type && standIn.Name == name;
  });
  if (found == standIns.end()) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::FileNotFound);
  }
  return std::as_bytes(std::span(found->Bytes));
}

modWindowsFileInfo::FileTimes PosixHost::ReadTimes(const std::string& path) const {
  return modWindowsFileInfo::ReadFileTimes(path);
}

void PosixHost::SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) {
  modWindowsFileInfo::SetFileTimes(path, times);
}

void PosixHost::StartProcess(const std::string& path, deploy::WindowState /*window*/) {
  std::string program = path;
  const std::array<char*, 2> arguments = {program.data(), nullptr};
  pid_t process = 0;
  const int failure =
      ::posix_spawn(&process, path.c_str(), nullptr, nullptr, arguments.data(), ::environ);
  if (failure != 0) throw modAllPurpose::FileErrorFromErrno(failure);
}

}  // namespace tests
