// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <process.h>
#include <windows.h>

#include <gtest/gtest.h>

// The tool on the console of its user, which this program must be started on.
namespace {

constexpr UINT kCodePage = 850;

class ToolOnAConsole : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(::SetConsoleOutputCP(kCodePage), 0) << "there is no console";
    ASSERT_EQ(::GetConsoleOutputCP(), kCodePage);
  }

  // Runs the tool to its end and returns its exit status.
  template <typename... Words>
  int Run(Words... words) {
    const auto process = ::_wspawnl(_P_NOWAIT, tool_.c_str(), L"vantrel-report", words..., nullptr);
    while (::WaitForSingleObject(reinterpret_cast<HANDLE>(process), 0) == WAIT_TIMEOUT) {
      if (::GetConsoleOutputCP() == CP_UTF8) sawUtf8_ = true;
    }
    int status = -1;
    ::_cwait(&status, process, _WAIT_CHILD);
    return status;
  }

  std::filesystem::path tool_ = std::filesystem::absolute(VANTREL_REPORT_TOOL);
  bool sawUtf8_ = false;
};

TEST_F(ToolOnAConsole, WritesUtf8AndPutsTheCodePageBack) {
  EXPECT_EQ(Run(L"--help"), 0);
  EXPECT_TRUE(sawUtf8_);
  EXPECT_EQ(::GetConsoleOutputCP(), kCodePage);
}

TEST_F(ToolOnAConsole, PutsTheCodePageBackWhereItFails) {
  EXPECT_EQ(Run(L"header", L"nowhere.c3d"), 1);
  EXPECT_TRUE(sawUtf8_);
  EXPECT_EQ(::GetConsoleOutputCP(), kCodePage);
}

}  // namespace
