// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace modVantrel {

// A key of a subject file ("Gender", "DOB", "Date") and the value that it is to have.
struct SubjectEntry {
  std::string Key;
  std::string Value;
};

// The bytes of a subject file with those values: the first line of a key, which is the one that is
// read, gets the new value, and a key without a line gets one, before the first "[section]" or at
// the end. All else stays byte for byte, line ends and the form of the characters (see
// SubjectFileText) included. Keys and values are ASCII. Error 75 for bytes that are no text or are
// more than kLargestSubjectFile.
std::string WithSubjectEntries(std::string_view bytes, const std::vector<SubjectEntry>& entries);

// Puts the values into the file "subject.ini" in the folder of `trial`, which is made where it is
// missing, whole or not at all. Errors as WithSubjectEntries and WholeFiles, and of reading what is
// there; all name the file.
void KeepInSubjectFile(const std::string& trial, const std::vector<SubjectEntry>& entries);

}  // namespace modVantrel
