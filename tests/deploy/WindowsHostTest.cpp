// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <string>
#include <utility>
#include <windows.h>

#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "tests/TestTrials.h"
#include "tests/deploy/OwnSystem.h"

namespace {

namespace fs = std::filesystem;

// What was last handed to the system's CreateProcessW, which this program calls through SeeStart.
struct Start {
  std::wstring Program;
  std::wstring CommandLine;
  DWORD CreationFlags = 0;
  DWORD WindowFlags = 0;
  WORD ShowWindow = 0;
};
Start handedOver;

}  // namespace

extern "C" {
// The places where the program finds the function, the system's own and the one that it is given.
extern decltype(&::CreateProcessW) systemsCreateProcess __asm__("__real___imp_CreateProcessW");
extern decltype(&::CreateProcessW) givenCreateProcess __asm__("__wrap___imp_CreateProcessW");

static BOOL WINAPI SeeStart(LPCWSTR program, LPWSTR commandLine, LPSECURITY_ATTRIBUTES process,
                            LPSECURITY_ATTRIBUTES thread, BOOL inherit, DWORD flags, LPVOID setting,
                            LPCWSTR folder, LPSTARTUPINFOW start, LPPROCESS_INFORMATION made) {
  handedOver = {program, commandLine, flags, start->dwFlags, start->wShowWindow};
  return systemsCreateProcess(program, commandLine, process, thread, inherit, flags, setting,
                              folder, start, made);
}
decltype(&::CreateProcessW) givenCreateProcess = &SeeStart;
}

namespace {

class WindowsHost : public testing::Test {
 protected:
  std::string Path(const std::string& name) const {
    return modAllPurpose::Utf8Path(folder_ / name);
  }

  void WriteReadOnly(const std::string& name, const std::string& content) const {
    std::ofstream(folder_ / name, std::ios::binary) << content;
    ::SetFileAttributesW((folder_ / name).c_str(), FILE_ATTRIBUTE_READONLY);
  }

  bool IsReadOnly(const std::string& name) const {
    return (::GetFileAttributesW((folder_ / name).c_str()) & FILE_ATTRIBUTE_READONLY) != 0;
  }

  tests::TemporaryFolder folder_;
  tests::OwnSystem host_{[](const std::string&) {}};
};

// As a program does that was copied from a medium which cannot be written.
TEST_F(WindowsHost, CopiesAReadOnlyProgramToAndFroAndDeletesItsFixer) {
  WriteReadOnly("main.exe", "program");
  host_.Copy(Path("main.exe"), Path("main_Fix.exe"));
  ASSERT_TRUE(IsReadOnly("main_Fix.exe"));
  host_.Copy(Path("main_Fix.exe"), Path("main.exe"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "main.exe"), "program");
  host_.RemoveFile(Path("main_Fix.exe"));
  EXPECT_FALSE(fs::exists(folder_ / "main_Fix.exe"));
  host_.RemoveFile(Path("main.exe"));
}

TEST_F(WindowsHost, CopiesOverAReadOnlyFile) {
  std::ofstream(folder_ / "from") << "new";
  WriteReadOnly("to", "old");
  host_.Copy(Path("from"), Path("to"));
  EXPECT_EQ(tests::ReadWholeFile(folder_ / "to"), "new");
  EXPECT_FALSE(IsReadOnly("to"));
}

// No program is there, so that the system is asked and nothing starts.
TEST_F(WindowsHost, StartsAProgramInAVisibleWindowWithoutArguments) {
  const std::wstring program = (folder_ / "a b.exe").native();
  for (const auto& [state, show] :
       {std::pair{deploy::WindowState::NormalFocus, SW_SHOWNORMAL},
        std::pair{deploy::WindowState::MinimizedFocus, SW_SHOWMINIMIZED}}) {
    EXPECT_EQ(
        tests::ErrorNumberOf([&, asked = state] { host_.StartProcess(Path("a b.exe"), asked); }),
        53);
    EXPECT_EQ(handedOver.Program, program);
    EXPECT_EQ(handedOver.CommandLine, L'"' + program + L'"');
    EXPECT_EQ(handedOver.CreationFlags, 0U) << "a console and a window as every program has them";
    EXPECT_EQ(handedOver.WindowFlags, DWORD{STARTF_USESHOWWINDOW});
    EXPECT_EQ(handedOver.ShowWindow, show);
  }
}

TEST_F(WindowsHost, KnowsTheLowerCaseOfLettersOutsideAscii) {
  EXPECT_EQ(host_.LowerCase("\xC3\x84RZTE GR\xC3\x9C\xC3\x9F"
                            "E \xCE\xA9.EXE"),
            "\xC3\xA4rzte gr\xC3\xBC\xC3\x9F"
            "e \xCF\x89.exe");
}

}  // namespace
