// SPDX-License-Identifier: GPL-3.0-or-later

// A program that does nothing but deploy its stand-ins, with waits a twentieth as long, and writes
// what it does, and what is unusual in how it was started, to the file "log.txt" beside it.
#include <fstream>
#include <iterator>
#include <string>

#include "deploy/DeployDependencies.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "tests/deploy/OwnSystem.h"
#ifdef _WIN32
#include <windows.h>
#endif

namespace {

using tests::OwnSystem;
using namespace std::chrono_literals;

class ProbeHost : public OwnSystem {
 public:
  ProbeHost() : OwnSystem([this](const std::string& text) { Log("says " + text); }) {}

  void Wait(std::chrono::milliseconds time) override { OwnSystem::Wait(time / 20); }

  void Copy(const std::string& from, const std::string& to) override {
    try {
      OwnSystem::Copy(from, to);
      Log("copies " + FileName(from) + " to " + FileName(to));
    } catch (const modAllPurpose::RuntimeError&) {
      Log("cannot copy yet");
      throw;
    }
  }

  void StartProcess(const std::string& path, deploy::WindowState window) override {
    Log("starts " + FileName(path));
    OwnSystem::StartProcess(path, window);
  }

  void Log(const std::string& line) const {
    std::ofstream(LogPath(), std::ios::app | std::ios::binary)
        << FileName(ProgramPath()) << " " << line << "\n";
  }

  // Stays until the next process was seen to meet this one's file in use, as it may with a program
  // that is slow to end.
  void LingerUntilInTheWay() {
    for (int k = 0; k < 1000 && !LogHas("cannot copy yet"); ++k) OwnSystem::Wait(10ms);
  }

 private:
  std::filesystem::path LogPath() const {
    return modAllPurpose::NativePath(ProgramPath()).replace_filename("log.txt");
  }

  std::string FileName(const std::string& path) const {
    return path.substr(path.rfind(FolderSeparator()) + 1);
  }

  bool LogHas(const std::string& text) const {
    std::ifstream file(LogPath(), std::ios::binary);
    const std::string log{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return log.find(text) != std::string::npos;
  }
};

// How the process that started this one wants its window shown; empty where it is shown as usual.
std::string WindowState() {
#ifdef _WIN32
  STARTUPINFOW start{};
  ::GetStartupInfoW(&start);
  if ((start.dwFlags & STARTF_USESHOWWINDOW) == 0) return "was told nothing of its window";
  if (start.wShowWindow == SW_SHOWNORMAL) return {};
  if (start.wShowWindow == SW_SHOWMINIMIZED) return "is minimised";
  return "is in window state " + std::to_string(start.wShowWindow);
#else
  return {};  // nobody says
#endif
}

}  // namespace

int main(int count, char** /*arguments*/) {
  ProbeHost host;
  if (count != 1) host.Log("was given arguments");
  if (const std::string state = WindowState(); !state.empty()) host.Log(state);
  if (modVantrel_PatchUp::DeployDependencies(host)) {
    host.Log("goes on");
  } else {
    host.LingerUntilInTheWay();
  }
}
