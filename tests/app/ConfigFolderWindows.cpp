// SPDX-License-Identifier: GPL-3.0-or-later

#include <stdexcept>
#include <utility>
#include <windows.h>

#include "support/FileSystem.h"
#include "tests/app/ConfigFolder.h"

namespace tests {

namespace {

constexpr const wchar_t* kSettings = L"Local AppData";
constexpr const wchar_t* kDesktop = L"Desktop";

// Where the user's folders are, by the system's settings; a null value is the system's own choice.
void SetUserFolder(const wchar_t* name, const std::wstring* folder) {
  constexpr const wchar_t* kFolders =
      LR"(Software\Microsoft\Windows\CurrentVersion\Explorer\User Shell Folders)";
  if (folder == nullptr) {
    ::RegDeleteKeyValueW(HKEY_CURRENT_USER, kFolders, name);
    return;
  }
  const auto bytes = static_cast<DWORD>((folder->size() + 1) * sizeof(wchar_t));
  if (::RegSetKeyValueW(HKEY_CURRENT_USER, kFolders, name, REG_SZ, folder->c_str(), bytes) != 0) {
    throw std::runtime_error("cannot name a folder of the user");
  }
}

bool IsUnderWine() {
  return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

}  // namespace

ConfigFolder::ConfigFolder(std::string folder) : folder_(std::move(folder)) {
  if (!IsUnderWine()) throw std::runtime_error("these tests change where the user's folders are");
  SetUserFolder(kSettings, &modAllPurpose::NativePath(folder_).native());
}

ConfigFolder::~ConfigFolder() {
  SetUserFolder(kSettings, nullptr);
  SetUserFolder(kDesktop, nullptr);
}

void ConfigFolder::NameDesktop(const std::string& desktop) {
  SetUserFolder(kDesktop, &modAllPurpose::NativePath(desktop).native());
}

}  // namespace tests
