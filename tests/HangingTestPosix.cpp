// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

// Ends a test program in which one test takes minutes, and says which: who ends all of its tests
// from outside tells no more than its name. Linked with every test program.
namespace {

constexpr unsigned kMostSeconds = 420;

std::string complaint;  // about the test that runs

extern "C" void Complain(int /*signal*/) {
  [[maybe_unused]] const auto written = ::write(STDERR_FILENO, complaint.data(), complaint.size());
  ::_exit(1);
}

class Watch : public testing::EmptyTestEventListener {
  void OnTestStart(const testing::TestInfo& test) override {
    complaint = std::string(test.test_suite_name()) + '.' + test.name() + " hangs\n";
    ::alarm(kMostSeconds);
  }
  void OnTestEnd(const testing::TestInfo& /*test*/) override { ::alarm(0); }
};

[[maybe_unused]] const bool isWatched = [] {
  std::signal(SIGALRM, Complain);
  testing::UnitTest::GetInstance()->listeners().Append(new Watch);  // which owns it
  return true;
}();

}  // namespace
