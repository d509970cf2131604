// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/WindowsHost.h"

#include <filesystem>
#include <utility>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/WindowsError.h"
#include "support/WindowsText.h"

namespace deploy {

using modAllPurpose::NativePath;
using modAllPurpose::Utf16Text;

namespace {

// Empty where the system does not tell.
std::string PathOfThisProgram() {
  constexpr DWORD kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), kLongestPath);
  if (length == kLongestPath) return {};
  path.resize(length);
  // A name that is no UTF-16 has no path in the program.
  std::string known;
  modAllPurpose::IgnoringErrors([&] { known = modAllPurpose::Utf8Path(path); });
  return known;
}

// A copy keeps the attributes, so that a program from a medium that cannot be written makes copies
// that no other file can be copied over.
void LetBeReplaced(const std::wstring& path) {
  const DWORD attributes = ::GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_READONLY) == 0) return;
  ::SetFileAttributesW(path.c_str(), attributes & ~DWORD{FILE_ATTRIBUTE_READONLY});
}

}  // namespace

WindowsHost::WindowsHost(MessageShower showMessage)
    : SystemHost(PathOfThisProgram(), std::move(showMessage)) {}

std::string WindowsHost::LowerCase(const std::string& text) const {
  std::wstring lower = Utf16Text(text);
  ::CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
  return modAllPurpose::Utf8Text(lower);
}

std::span<const std::byte> WindowsHost::Resource(const std::string& type,
                                                 const std::string& name) const {
  const HRSRC found = ::FindResourceW(nullptr, Utf16Text(name).c_str(), Utf16Text(type).c_str());
  const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(nullptr, found);
  if (loaded == nullptr) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::FileNotFound);
  }
  return {static_cast<const std::byte*>(::LockResource(loaded)), ::SizeofResource(nullptr, found)};
}

void WindowsHost::Copy(const std::string& from, const std::string& to) {
  constexpr BOOL kFailIfExists = FALSE;
  const std::wstring target = NativePath(to);
  LetBeReplaced(target);
  if (::CopyFileW(NativePath(from).c_str(), target.c_str(), kFailIfExists) == 0) {
    throw modAllPurpose::LastFileError();
  }
}

modWindowsFileInfo::FileTimes WindowsHost::ReadTimes(const std::string& path) const {
  return modWindowsFileInfo::ReadFileTimes(path);
}

void WindowsHost::SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) {
  modWindowsFileInfo::SetFileTimes(path, times);
}

void WindowsHost::StartProcess(const std::string& path, WindowState window) {
  const std::wstring program = NativePath(path);
  std::wstring commandLine = L'"' + program + L'"';
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESHOWWINDOW;
  start.wShowWindow = window == WindowState::NormalFocus ? SW_SHOWNORMAL : SW_SHOWMINIMIZED;
  PROCESS_INFORMATION process{};
  if (::CreateProcessW(program.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                       nullptr, &start, &process) == 0) {
    throw modAllPurpose::LastFileError();
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

}  // namespace deploy
