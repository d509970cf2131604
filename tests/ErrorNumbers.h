// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace tests {

// The numbers of run-time errors as a user reads them, written out once more: a test that took them
// from the program would follow it when one changes.
inline constexpr int kOverflow = 6;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kFileNotFound = 53;
inline constexpr int kDiskFull = 61;
inline constexpr int kInputPastEndOfFile = 62;
inline constexpr int kBadRecordNumber = 63;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kPathFileAccessError = 75;
inline constexpr int kPathNotFound = 76;

}  // namespace tests
