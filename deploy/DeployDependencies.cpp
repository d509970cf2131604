// SPDX-License-Identifier: GPL-3.0-or-later

#include "deploy/DeployDependencies.h"

#include <array>
#include <string>
#include <string_view>

#include "deploy/Folders.h"
#include "deploy/ResourceFile.h"
#include "support/RuntimeError.h"

namespace modVantrel_PatchUp {

using deploy::Host;
using deploy::WindowState;
using modAllPurpose::IgnoringErrors;
using namespace std::chrono_literals;

namespace {

constexpr std::array kLibraries = {"comdlg32.ocx", "mscomct2.ocx", "mscomctl.ocx",
                                   "richtx32.ocx", "tabctl32.ocx", "dao360.dll"};

constexpr std::string_view kProgramEnding = ".exe";
constexpr std::string_view kFixerEnding = "_Fix.exe";
constexpr std::string_view kFixerEndingLower = "_fix.exe";

constexpr int kAttempts = 12;
constexpr auto kRetryPause = 5s;
constexpr auto kHandOverPause = 5s;  // lets the process before this one end
constexpr auto kStartPause = 1s;
constexpr auto kTimeShift = 864s;  // 0.01 day

// The running program.
struct Program {
  std::string Path;
  std::string Folder;    // with a separator at its end
  std::string FileName;  // in lower case, ending ".exe"

  std::string NameWithout(std::string_view ending) const {
    return FileName.substr(0, FileName.size() - ending.size());
  }
  std::string FixerPath() const {
    return Folder + NameWithout(kProgramEnding) + std::string(kFixerEnding);
  }
  std::string MainPath() const {  // of a fixer
    return Folder + NameWithout(kFixerEndingLower) + std::string(kProgramEnding);
  }
};

Program RunningProgram(const Host& host) {
  Program program;
  program.Path = host.ProgramPath();
  const auto nameStart = program.Path.rfind(host.FolderSeparator()) + 1;
  program.Folder = program.Path.substr(0, nameStart);
  program.FileName = host.LowerCase(program.Path.substr(nameStart));
  if (!program.FileName.ends_with(kProgramEnding)) program.FileName += kProgramEnding;
  return program;
}

// Tries `work` until it succeeds. Where it never does, shows `complaint` and answers false.
template <typename Work>
bool Persist(Host& host, const char* complaint, Work&& work) {
  for (int attempt = 1; !IgnoringErrors(work); ++attempt) {
    if (attempt == kAttempts) {
      host.ShowMessage(complaint);
      return false;
    }
    host.Wait(kRetryPause);
  }
  return true;
}

bool CopyProgram(Host& host, const std::string& from, const std::string& to) {
  return Persist(host, "Error copying program file.", [&] { host.Copy(from, to); });
}

void StartProgram(Host& host, const std::string& path, WindowState window) {
  Persist(host, "Error running main program file.", [&] { host.StartProcess(path, window); });
}

// The fixer's work: it takes the main program's place and starts it.
void ReplaceMainProgram(Host& host, const Program& fixer) {
  host.Wait(kHandOverPause);
  if (!CopyProgram(host, fixer.Path, fixer.MainPath())) return;
  StartProgram(host, fixer.MainPath(), WindowState::NormalFocus);
}

// Extracts one resource unless its file is there; answers whether a file was written. A failure
// counts as nothing written, so that a folder that cannot be written to does not keep the program
// from starting.
bool WriteMissingFile(Host& host, const std::string& folder, const std::string& name,
                      const char* type) {
  if (host.FileExists(folder + name)) return false;
  return IgnoringErrors([&] {
    modResourceFile::ExtractResourceToFile(host, folder, name, type,
                                           modResourceFile::Overwrite::No);
  });
}

// Answers whether any file was missing and is now there.
bool WriteMissingFiles(Host& host, const Program& program) {
  const std::string dependencies = program.Folder + "Dependencies" + host.FolderSeparator();
  if (!modAllPurposeFolders::FolderExists(host, dependencies)) {
    IgnoringErrors([&] { host.MakeFolder(dependencies); });
  }
  bool written = WriteMissingFile(host, program.Folder, program.FileName + ".manifest", "Manifest");
  for (const char* library : kLibraries) {
    if (WriteMissingFile(host, dependencies, library, "Dependencies")) written = true;
  }
  return written;
}

// The system remembers by path and last write time that a program had no manifest; an earlier time
// has it look again.
void MakeFileLookOlder(Host& host, const std::string& path) {
  IgnoringErrors([&] {
    auto times = host.ReadTimes(path);
    times.LastWrite -= kTimeShift;
    host.SetTimes(path, times);
  });
}

void HandOverToFixer(Host& host, const Program& program) {
  const std::string fixer = program.FixerPath();
  if (!CopyProgram(host, program.Path, fixer)) return;
  host.Wait(kHandOverPause);
  MakeFileLookOlder(host, fixer);
  host.Wait(kStartPause);
  StartProgram(host, fixer, WindowState::MinimizedFocus);
}

}  // namespace

bool DeployDependencies(Host& host) {
  const Program program = RunningProgram(host);
  if (host.ErrorIsPending()) return true;
  if (host.FileExists(program.Folder + program.FileName + ".manifest1")) return true;
  if (program.FileName.ends_with(kFixerEndingLower)) {
    ReplaceMainProgram(host, program);
    return false;
  }
  modAllPurposeFolders::DeleteIgnoringErrors(host, program.FixerPath());
  if (!WriteMissingFiles(host, program)) return true;
  HandOverToFixer(host, program);
  return false;
}

}  // namespace modVantrel_PatchUp
