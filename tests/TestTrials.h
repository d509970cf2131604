#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "c3d/FileState.h"
#include "c3d/OpenC3dFile.h"
#include "sample/TrialBuilder.h"
#include "support/RuntimeError.h"

namespace tests {

// A folder of its own for one test, removed with everything in it.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::filesystem::path& Path() const { return path_; }
  std::filesystem::path operator/(const std::string& name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

// A trial written to a file and opened, without looking for events.
class OpenedTrial {
 public:
  explicit OpenedTrial(const sample::Trial& trial);
  explicit OpenedTrial(const sample::TrialBuilder& builder) : OpenedTrial(builder.Build()) {}

  modVantrel::OpenResult Result() const { return result_; }
  modVantrel::FileState& State() { return state_; }
  const std::filesystem::path& File() const { return file_; }

 private:
  TemporaryFolder folder_;
  std::filesystem::path file_;
  modVantrel::FileState state_;
  modVantrel::OpenResult result_;
};

// Stands for the search for events where a test does not need it.
void NoEvents(modVantrel::FileState& state);

// The number of the run-time error that `work` ends in; 0 where it ends without one.
int ErrorNumberOf(const std::function<void()>& work);

std::string ReadWholeFile(const std::filesystem::path& path);

}  // namespace tests
