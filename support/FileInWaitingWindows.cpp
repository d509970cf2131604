// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

#include "support/FileInWaiting.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"
#include "support/WindowsPath.h"

namespace modAllPurpose {

namespace fs = std::filesystem;

// The access list, in the form in which the system hands it out; empty where it has none to give.
struct FileRights {
  std::vector<std::byte> AccessList;
};

namespace {

constexpr int kAttempts = 100;

RuntimeError Refusal(const fs::path& name, const char* reason) {
  return {ErrorNumber::PathFileAccessError, Utf8Path(name) + reason};
}

std::optional<FileIdentity> IdentityIn(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION information{};
  if (::GetFileInformationByHandle(file, &information) == 0) return std::nullopt;
  return FileIdentity{
      information.dwVolumeSerialNumber,
      (std::uint64_t{information.nFileIndexHigh} << 32U) | information.nFileIndexLow};
}

std::vector<std::byte> AccessListOf(const fs::path& path) {
  DWORD size = 0;
  ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  std::vector<std::byte> list(size);
  if (list.empty() ||
      ::GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, list.data(), size, &size) == 0) {
    list.clear();
  }
  return list;
}

// The path of an open file without links.
fs::path PathWithoutLinks(HANDLE file) {
  std::wstring path(::GetFinalPathNameByHandleW(file, nullptr, 0, VOLUME_NAME_DOS), L'\0');
  const DWORD length = ::GetFinalPathNameByHandleW(
      file, path.data(), static_cast<DWORD>(path.size()), VOLUME_NAME_DOS);
  if (length == 0 || length >= path.size()) throw LastFileError();
  path.resize(length);
  return path;
}

// A file whose deletion is asked for vanishes with its last handle, also that of a killed program.
bool AskForDeletion(HANDLE file, bool wanted) {
  FILE_DISPOSITION_INFO disposition{};
  disposition.DeleteFile = wanted ? TRUE : FALSE;
  return ::SetFileInformationByHandle(file, FileDispositionInfo, &disposition,
                                      sizeof(disposition)) != 0;
}

// Opened with the access list of `old` it is never open to anybody else.
HANDLE Create(const fs::path& path, const FileToReplace* old) {
  SECURITY_ATTRIBUTES security{};
  security.nLength = sizeof(security);
  std::vector<std::byte> list;
  if (old != nullptr) list = old->Rights->AccessList;
  security.lpSecurityDescriptor = list.data();
  return ::CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, list.empty() ? nullptr : &security,
                       CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

std::optional<FileToReplace> FindFileToReplace(const fs::path& name) {
  const DWORD attributes = ::GetFileAttributesW(name.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD failure = ::GetLastError();
    if (failure == ERROR_FILE_NOT_FOUND || failure == ERROR_PATH_NOT_FOUND) return std::nullopt;
    throw LastFileError();
  }
  if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) throw Refusal(name, " is no regular file");
  const OpenHandle file(::CreateFileW(name.c_str(), GENERIC_WRITE, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  const bool isLink = (attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (!file.IsOpen() && isLink && ::GetLastError() == ERROR_FILE_NOT_FOUND) {
    throw Refusal(name, " is a link that leads nowhere");
  }
  if (!file.IsOpen()) throw LastFileError();
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) throw Refusal(name, " is no regular file");
  const fs::path path = isLink ? PathWithoutLinks(file.Get()) : name;
  return FileToReplace{path, std::make_shared<const FileRights>(AccessListOf(path))};
}

std::optional<FileIdentity> IdentityOf(const fs::path& name) {
  const OpenHandle file(::CreateFileW(name.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) return std::nullopt;
  return IdentityIn(file.Get());
}

void DeleteIfStill(const fs::path& name, const FileIdentity& identity) noexcept {
  const OpenHandle file(::CreateFileW(name.c_str(), DELETE, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  if (file.IsOpen() && IdentityIn(file.Get()) == identity) AskForDeletion(file.Get(), true);
}

FileInWaiting::FileInWaiting(const fs::path& folder, std::string_view text,
                             const FileToReplace* old, Named named)
    : folder_(folder) {
  MakeNamed(folder_, old);
  try {
    if (named == Named::WhereItMust) AskForDeletion(Handle(handle_), true);
    Write(text);
    if (::FlushFileBuffers(Handle(handle_)) == 0) throw LastFileError();
  } catch (...) {
    Discard();
    throw;
  }
}

void FileInWaiting::MakeNamed(const fs::path& folder, const FileToReplace* old) {
  for (int i = 0; i < kAttempts; ++i) {
    name_ = OfAnyLength(NameInWaiting(folder));
    const HANDLE file = Create(name_, old);
    handle_ = reinterpret_cast<std::intptr_t>(file);
    if (file != INVALID_HANDLE_VALUE) return;
    if (::GetLastError() != ERROR_FILE_EXISTS) throw LastFileError();
  }
  throw RuntimeError(ErrorNumber::PathFileAccessError);
}

void FileInWaiting::Write(std::string_view text) const {
  while (!text.empty()) {
    DWORD count = 0;
    const auto wanted = static_cast<DWORD>(std::min(text.size(), kMostAtOnce));
    if (::WriteFile(Handle(handle_), text.data(), wanted, &count, nullptr) == 0) {
      throw LastFileError();
    }
    text.remove_prefix(count);
  }
}

void FileInWaiting::Discard() noexcept {
  if (handle_ != -1) ::CloseHandle(Handle(handle_));
  if (!name_.empty()) ::DeleteFileW(name_.c_str());
}

FileInWaiting::~FileInWaiting() { Discard(); }

FileIdentity FileInWaiting::Identity() const {
  const auto identity = IdentityIn(Handle(handle_));
  if (!identity) throw LastFileError();
  return *identity;
}

void FileInWaiting::StayUnderItsName() {
  if (handle_ == -1) return;
  const bool stays = AskForDeletion(Handle(handle_), false);
  if (!stays) throw LastFileError();
  ::CloseHandle(Handle(std::exchange(handle_, -1)));
}

bool FileInWaiting::TakeNameIfFree(const fs::path& name) {
  StayUnderItsName();
  const bool taken = ::MoveFileExW(name_.c_str(), name.c_str(), 0) == 0;
  const DWORD failure = ::GetLastError();
  if (taken && (failure == ERROR_ALREADY_EXISTS || failure == ERROR_FILE_EXISTS)) return false;
  if (taken) throw LastFileError();
  name_.clear();
  return true;
}

void FileInWaiting::TakePlaceOf(const fs::path& name) {
  StayUnderItsName();
  if (::MoveFileExW(name_.c_str(), name.c_str(), MOVEFILE_REPLACE_EXISTING) == 0) {
    throw LastFileError();
  }
  name_.clear();
}

}  // namespace modAllPurpose
