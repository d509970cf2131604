#include "deploy/WindowsHost.h"

#include <filesystem>
#include <system_error>
#include <utility>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/RuntimeError.h"

namespace deploy {

using modAllPurpose::NativePath;

namespace {

modAllPurpose::RuntimeError LastError() {
  return modAllPurpose::FileErrorFromCode(
      {static_cast<int>(::GetLastError()), std::system_category()});
}

// Empty where the system does not tell.
std::string PathOfThisProgram() {
  constexpr DWORD kLongestPath = 32768;
  std::wstring path(kLongestPath, L'\0');
  const DWORD length = ::GetModuleFileNameW(nullptr, path.data(), kLongestPath);
  if (length == kLongestPath) return {};
  path.resize(length);
  return modAllPurpose::Utf8Path(path);
}

}  // namespace

WindowsHost::WindowsHost(MessageShower showMessage)
    : SystemHost(PathOfThisProgram(), std::move(showMessage)) {}

std::span<const std::byte> WindowsHost::Resource(const std::string& type,
                                                 const std::string& name) const {
  const HRSRC found = ::FindResourceW(nullptr, NativePath(name).c_str(), NativePath(type).c_str());
  const HGLOBAL loaded = found == nullptr ? nullptr : ::LoadResource(nullptr, found);
  if (loaded == nullptr) {
    throw modAllPurpose::RuntimeError(modAllPurpose::ErrorNumber::FileNotFound);
  }
  return {static_cast<const std::byte*>(::LockResource(loaded)), ::SizeofResource(nullptr, found)};
}

void WindowsHost::Copy(const std::string& from, const std::string& to) {
  constexpr BOOL kFailIfExists = FALSE;
  if (::CopyFileW(NativePath(from).c_str(), NativePath(to).c_str(), kFailIfExists) == 0) {
    throw LastError();
  }
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
    throw LastError();
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
}

}  // namespace deploy
