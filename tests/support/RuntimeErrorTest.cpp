#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "support/RuntimeError.h"

namespace {

using modAllPurpose::ErrorNumber;
using modAllPurpose::FileErrorFromErrno;
using modAllPurpose::RuntimeError;

TEST(RuntimeError, EachNumberHasItsDescription) {
  const std::vector<std::pair<int, std::string>> table = {{6, "Overflow"},
                                                          {7, "Out of memory"},
                                                          {9, "Subscript out of range"},
                                                          {11, "Division by zero"},
                                                          {53, "File not found"},
                                                          {57, "Device I/O error"},
                                                          {61, "Disk full"},
                                                          {62, "Input past end of file"},
                                                          {63, "Bad record number"},
                                                          {70, "Permission denied"},
                                                          {75, "Path/File access error"},
                                                          {76, "Path not found"},
                                                          {91, "Object variable not set"}};
  for (const auto& [number, description] : table) {
    const RuntimeError error(static_cast<ErrorNumber>(number));
    EXPECT_EQ(error.what(), description);
    EXPECT_EQ(RuntimeErrorTitle(error), "Run-time error '" + std::to_string(number) + "':");
  }
}

TEST(FileErrorFromErrno, NamesWhatTheSystemSaid) {
  const std::vector<std::pair<int, ErrorNumber>> table = {
      {ENOENT, ErrorNumber::FileNotFound},       {ENOTDIR, ErrorNumber::PathNotFound},
      {EACCES, ErrorNumber::PermissionDenied},   {EPERM, ErrorNumber::PermissionDenied},
      {ENOSPC, ErrorNumber::DiskFull},           {EFBIG, ErrorNumber::DiskFull},
      {ENOMEM, ErrorNumber::OutOfMemory},        {EIO, ErrorNumber::DeviceIoError},
      {EISDIR, ErrorNumber::PathFileAccessError}};
  for (const auto& [systemError, number] : table) {
    EXPECT_EQ(FileErrorFromErrno(systemError).Number(), number) << systemError;
  }
}

}  // namespace
