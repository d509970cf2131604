// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/SystemHost.h"

#include <filesystem>
#include <system_error>
#include <thread>
#include <utility>

#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace deploy {

using modAllPurpose::NativePath;

namespace {

void ThrowIf(const std::error_code& failure) {
  if (failure) throw modAllPurpose::FileErrorFromCode(failure);
}

}  // namespace

SystemHost::SystemHost(std::string programPath, MessageShower showMessage)
    : programPath_(std::move(programPath)), showMessage_(std::move(showMessage)) {}

char SystemHost::FolderSeparator() const {
  return static_cast<char>(std::filesystem::path::preferred_separator);
}

bool SystemHost::FileExists(const std::string& path) const {
  return modAllPurpose::FileExists(path);
}

bool SystemHost::IsFolder(const std::string& path) const { return modAllPurpose::IsFolder(path); }

void SystemHost::MakeFolder(const std::string& path) {
  std::error_code failure;
  std::filesystem::create_directory(NativePath(path), failure);
  ThrowIf(failure);
}

void SystemHost::RemoveFile(const std::string& path) { modAllPurpose::RemoveFile(path); }

void SystemHost::Copy(const std::string& from, const std::string& to) {
  std::error_code failure;
  std::filesystem::copy_file(NativePath(from), NativePath(to),
                             std::filesystem::copy_options::overwrite_existing, failure);
  ThrowIf(failure);
}

void SystemHost::WriteNewFile(const std::string& path, std::span<const std::byte> bytes) {
  modAllPurpose::WriteNewFile(path, bytes);
}

void SystemHost::Wait(std::chrono::milliseconds time) { std::this_thread::sleep_for(time); }

}  // namespace deploy
