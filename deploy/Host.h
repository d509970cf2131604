// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <span>
#include <string>

#include "deploy/FileTimes.h"

namespace deploy {

enum class WindowState { NormalFocus, MinimizedFocus };

// All that the start-up deployment asks of the system, so that each of its steps and waits can be
// seen, and each failure made, in a test. Paths are UTF-8. What fails throws a RuntimeError.
class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  // The character between a folder and what is in it.
  virtual char FolderSeparator() const = 0;

  // `text` with its letters in lower case, one for one, as the system knows them.
  virtual std::string LowerCase(const std::string& text) const = 0;

  // The running program's file with its whole path; empty where the system cannot tell.
  virtual std::string ProgramPath() const = 0;

  // True when something has gone wrong before the deployment begins; not knowing the program's own
  // path counts.
  virtual bool ErrorIsPending() const = 0;

  // The bytes of the resource `name` of `type` that the program carries, valid as long as it runs.
  // Error 53 where there is none.
  virtual std::span<const std::byte> Resource(const std::string& type,
                                              const std::string& name) const = 0;

  // True when `path` exists and is not a folder; never fails.
  virtual bool FileExists(const std::string& path) const = 0;
  // True when `path` is a folder; never fails.
  virtual bool IsFolder(const std::string& path) const = 0;
  // Makes the last folder of `path`.
  virtual void MakeFolder(const std::string& path) = 0;
  // Deletes a file; error 70 or 75 for a folder.
  virtual void RemoveFile(const std::string& path) = 0;
  // Copies the file `from` to `to`, in place of a file that is there.
  virtual void Copy(const std::string& from, const std::string& to) = 0;
  // Writes a file that is not there yet. Where it cannot, no part of it is left; error 75, and what
  // is there stays, where anything has that name.
  virtual void WriteNewFile(const std::string& path, std::span<const std::byte> bytes) = 0;

  // As ReadFileTimes and SetFileTimes.
  virtual modWindowsFileInfo::FileTimes ReadTimes(const std::string& path) const = 0;
  virtual void SetTimes(const std::string& path, const modWindowsFileInfo::FileTimes& times) = 0;

  // Starts the program at `path` without arguments and does not wait for it.
  virtual void StartProcess(const std::string& path, WindowState window) = 0;

  virtual void Wait(std::chrono::milliseconds time) = 0;

  // Shows `text` in a message box and returns when it was closed.
  virtual void ShowMessage(const std::string& text) = 0;
};

}  // namespace deploy
