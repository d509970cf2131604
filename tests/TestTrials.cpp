// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/TestTrials.h"

#include <fstream>
#include <iterator>
#include <random>
#include <system_error>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/FileSystem.h"

namespace tests {

std::array<float, 3> Origin(std::int32_t /*frame*/) { return {0, 0, 0}; }
float Silence(std::int32_t /*sample*/) { return 0; }

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  std::ostringstream name;
  name << "vantrel-test-" << std::hex << random() << random();
  path_ = std::filesystem::temp_directory_path() / name.str();
  std::filesystem::create_directory(path_);
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::filesystem::path TemporaryFolder::operator/(const std::string& name) const {
  return path_ / modAllPurpose::NativePath(name);
}

OpenedTrial::OpenedTrial(const sample::Trial& trial) : file_(folder_ / "trial.c3d") {
  trial.WriteTo(file_);
  result_ = modVantrel::OpenC3dFile(state_, file_.string(), NoEvents);
}

modVantrel::OpenResult TrialOpener::Open(const sample::Trial& trial) {
  WriteAnew(trial, file_);
  return modVantrel::OpenC3dFile(state_, file_.string(), NoEvents);
}

void TakeAway(const std::filesystem::path& path) {
  static int taken = 0;
  std::filesystem::path aside = path;
  aside += fmt::format(".{}", ++taken);
  std::error_code failure;
  std::filesystem::rename(path, aside, failure);
  if (!failure) std::filesystem::remove(aside);
}

void WriteAnew(const sample::Trial& trial, const std::filesystem::path& path) {
  TakeAway(path);
  trial.WriteTo(path);
}

void NoEvents(modVantrel::FileState& /*state*/) {}

int ErrorNumberOf(const std::function<void()>& work) {
  try {
    work();
    return 0;
  } catch (const modAllPurpose::RuntimeError& error) {
    return static_cast<int>(error.Number());
  }
}

std::string TextOf(const std::function<void(modAllPurpose::ReportOutput&)>& report) {
  modAllPurpose::TextReport output;
  report(output);
  return output.Text();
}

std::vector<std::string> LinesOf(const std::string& text, const std::string& end) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (auto at = text.find(end); at != std::string::npos; at = text.find(end, start)) {
    lines.push_back(text.substr(start, at - start));
    start = at + end.size();
  }
  EXPECT_EQ(text.substr(start), "") << "a line without its end";
  return lines;
}

std::string ReadWholeFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace tests
