// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <exception>
#include <memory>
#include <string>
#include <system_error>
#include <utility>

namespace modAllPurpose {

// The numbered errors that end a command. Each number has one fixed description.
enum class ErrorNumber {
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  FileNotFound = 53,
  DeviceIoError = 57,
  DiskFull = 61,
  InputPastEndOfFile = 62,
  BadRecordNumber = 63,
  PermissionDenied = 70,
  PathFileAccessError = 75,
  PathNotFound = 76,
  ObjectVariableNotSet = 91,
};

// Thrown where an error happens and caught only where a command promises to ignore it; anywhere
// else it travels to the window or the tool, which shows it.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(ErrorNumber number) noexcept : number_(number) {}
  // `about` says what the error is about: the path of a file or folder, or a sentence on it.
  RuntimeError(ErrorNumber number, std::string about)
      : number_(number), about_(std::make_shared<const std::string>(std::move(about))) {}

  ErrorNumber Number() const noexcept { return number_; }

  // The description alone, for example "Subscript out of range".
  const char* what() const noexcept override;

  // What the error is about; empty where that is not known.
  std::string About() const { return about_ ? *about_ : std::string(); }

 private:
  ErrorNumber number_;
  std::shared_ptr<const std::string> about_;  // a copy of an error must not fail
};

// "Run-time error '9':", the first line of every message about an error.
std::string RuntimeErrorTitle(const RuntimeError& error);

// All that is known of an error in one line: title, description and, where it is known, what it is
// about: "Run-time error '76': Path not found: /missing".
std::string RuntimeErrorLine(const RuntimeError& error);

// The error for an errno value that making, opening, writing or renaming a file left behind.
RuntimeError FileErrorFromErrno(int systemError);

// The same for a code of the standard library or, in the system's category, of the system. A code
// of another category, and one that means nothing else, is error 75.
RuntimeError FileErrorFromCode(const std::error_code& failure);

// Runs `work` and swallows a RuntimeError; returns whether it ran to its end. Other exceptions
// pass.
template <typename Work>
bool IgnoringErrors(Work&& work) {
  try {
    work();
    return true;
  } catch (const RuntimeError&) {
    return false;
  }
}

}  // namespace modAllPurpose
