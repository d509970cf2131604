// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <ios>
#include <string>
#include <system_error>
#include <utility>
#include <vector>
#ifdef _WIN32
#include <windows.h>
#endif

#include <gtest/gtest.h>

#include "support/RuntimeError.h"

namespace {

using modAllPurpose::ErrorNumber;
using modAllPurpose::FileErrorFromCode;
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

TEST(RuntimeError, SaysWhatItIsAboutBehindItsDescription) {
  const RuntimeError plain(ErrorNumber::DiskFull);
  EXPECT_EQ(plain.About(), "");
  EXPECT_EQ(RuntimeErrorLine(plain), "Run-time error '61': Disk full");
  const RuntimeError about(ErrorNumber::PathNotFound, "/missing");
  EXPECT_STREQ(about.what(), "Path not found");
  EXPECT_EQ(about.About(), "/missing");
  EXPECT_EQ(RuntimeErrorLine(about), "Run-time error '76': Path not found: /missing");
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

TEST(FileErrorFromCode, NamesWhatACodeOfErrnosCategorySays) {
  EXPECT_EQ(FileErrorFromCode({ENOSPC, std::generic_category()}).Number(), ErrorNumber::DiskFull);
  EXPECT_EQ(FileErrorFromCode(std::make_error_code(std::errc::permission_denied)).Number(),
            ErrorNumber::PermissionDenied);
}

// The number 1 of streams is not EPERM.
TEST(FileErrorFromCode, TakesNoCodeOfAnotherCategoryForOneOfErrno) {
  const auto failure = std::make_error_code(std::io_errc::stream);
  ASSERT_EQ(failure.value(), EPERM);
  EXPECT_EQ(FileErrorFromCode(failure).Number(), ErrorNumber::PathFileAccessError);
}

#ifdef _WIN32
TEST(FileErrorFromCode, NamesWhatWindowsSaid) {
  const std::vector<std::pair<int, ErrorNumber>> table = {
      {ERROR_FILE_NOT_FOUND, ErrorNumber::FileNotFound},
      {ERROR_PATH_NOT_FOUND, ErrorNumber::PathNotFound},
      {ERROR_ACCESS_DENIED, ErrorNumber::PermissionDenied},
      {ERROR_WRITE_FAULT, ErrorNumber::DeviceIoError},
      {ERROR_READ_FAULT, ErrorNumber::DeviceIoError},
      {ERROR_GEN_FAILURE, ErrorNumber::DeviceIoError},
      {ERROR_SHARING_VIOLATION, ErrorNumber::PermissionDenied},
      {ERROR_LOCK_VIOLATION, ErrorNumber::PermissionDenied},
      {ERROR_DISK_FULL, ErrorNumber::DiskFull},
      {ERROR_BAD_FORMAT, ErrorNumber::PathFileAccessError},  // 11, as EAGAIN
      {ERROR_WRONG_DISK, ErrorNumber::PathFileAccessError},
      {ERROR_BAD_EXE_FORMAT, ErrorNumber::PathFileAccessError}};
  for (const auto& [systemError, number] : table) {
    EXPECT_EQ(FileErrorFromCode({systemError, std::system_category()}).Number(), number)
        << systemError;
  }
}

// Of 1 to 1000 only those that are known to the library or here mean anything.
TEST(FileErrorFromCode, TakesNoNumberOfWindowsForOneOfErrno) {
  for (int systemError = 1; systemError <= 1000; ++systemError) {
    const std::error_code failure(systemError, std::system_category());
    const bool isKnown = failure.default_error_condition().category() == std::generic_category();
    const bool isKnownHere = systemError >= 29 && systemError <= 33;
    if (isKnown || isKnownHere) continue;
    EXPECT_EQ(FileErrorFromCode(failure).Number(), ErrorNumber::PathFileAccessError) << systemError;
  }
}
#endif

}  // namespace
