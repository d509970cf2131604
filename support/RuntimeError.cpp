#include "support/RuntimeError.h"

#include <cerrno>

#include <fmt/format.h>

namespace modAllPurpose {

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
  // The library takes a missing folder for a missing file.
  constexpr int kErrorPathNotFound = 3;
  if (failure == std::error_code(kErrorPathNotFound, std::system_category())) {
    return RuntimeError(ErrorNumber::PathNotFound);
  }
#endif
  return FileErrorFromErrno(failure.default_error_condition().value());
}

}  // namespace modAllPurpose
