// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/RuntimeError.h"

#include <cerrno>
#include <optional>

#include <fmt/format.h>

namespace modAllPurpose {

namespace {

#ifdef _WIN32
// The numbers of the system that the library maps to another error than they are, or to none.
std::optional<ErrorNumber> ErrorOfWindows(int systemError) {
  switch (systemError) {
    case 3:  // a missing folder
      return ErrorNumber::PathNotFound;
    case 29:  // the device cannot be written
    case 30:  // or read
    case 31:  // or does not work
      return ErrorNumber::DeviceIoError;
    case 32:  // another process has the file open
    case 33:  // or a part of it locked
      return ErrorNumber::PermissionDenied;
    default:
      return std::nullopt;
  }
}
#endif

}  // namespace

const char* RuntimeError::what() const noexcept {
  switch (number_) {
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::OutOfMemory:
      return "Out of memory";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::DivisionByZero:
      return "Division by zero";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::DeviceIoError:
      return "Device I/O error";
    case ErrorNumber::DiskFull:
      return "Disk full";
    case ErrorNumber::InputPastEndOfFile:
      return "Input past end of file";
    case ErrorNumber::BadRecordNumber:
      return "Bad record number";
    case ErrorNumber::PermissionDenied:
      return "Permission denied";
    case ErrorNumber::PathFileAccessError:
      return "Path/File access error";
    case ErrorNumber::PathNotFound:
      return "Path not found";
    case ErrorNumber::ObjectVariableNotSet:
      return "Object variable not set";
  }
  return "Unknown error";
}

std::string RuntimeErrorTitle(const RuntimeError& error) {
  return fmt::format("Run-time error '{}':", static_cast<int>(error.Number()));
}

std::string RuntimeErrorLine(const RuntimeError& error) {
  const std::string line = fmt::format("{} {}", RuntimeErrorTitle(error), error.what());
  return error.About().empty() ? line : fmt::format("{}: {}", line, error.About());
}

RuntimeError FileErrorFromErrno(int systemError) {
  switch (systemError) {
    case ENOENT:
      return RuntimeError(ErrorNumber::FileNotFound);
    case ENOTDIR:
      return RuntimeError(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
      return RuntimeError(ErrorNumber::PermissionDenied);
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return RuntimeError(ErrorNumber::DiskFull);
    case ENOMEM:
      return RuntimeError(ErrorNumber::OutOfMemory);
    case EIO:
      return RuntimeError(ErrorNumber::DeviceIoError);
    default:
      return RuntimeError(ErrorNumber::PathFileAccessError);
  }
}

RuntimeError FileErrorFromCode(const std::error_code& failure) {
#ifdef _WIN32
  if (failure.category() == std::system_category()) {
    if (const auto number = ErrorOfWindows(failure.value())) return RuntimeError(*number);
  }
#endif
  // A number means something in its own category alone.
  const std::error_condition condition = failure.default_error_condition();
  if (condition.category() != std::generic_category()) {
    return RuntimeError(ErrorNumber::PathFileAccessError);
  }
  return FileErrorFromErrno(condition.value());
}

}  // namespace modAllPurpose
