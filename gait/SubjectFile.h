// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace modVantrel {

// The name of the file in a trial's folder that tells of its subject.
inline constexpr std::string_view kSubjectFileName = "subject.ini";

// How much of a subject file is read.
inline constexpr std::size_t kLargestSubjectFile = std::size_t{64} * 1024;

// The path of that file for the trial at the path `trial`, written as that is.
std::string SubjectFileOf(const std::string& trial);

// The text of the file "subject.ini" in the folder of `trial`; empty where it cannot be read.
std::string ReadSubjectFile(const std::string& trial);

// The text of a file of those bytes in UTF-8: what its mark says is UTF-16 is made UTF-8, all else
// is taken for UTF-8, with a mark or without. Of more than kLargestSubjectFile bytes, the lines
// that end within so many.
std::string SubjectFileText(std::string_view bytes);

// The value of the first line "KEY = value" of `text`, whose lines end in LF, CR LF or CR, without
// the white space and the quotes around it; empty where there is none. Keys are compared without
// case, against `upperKey`. Other lines say nothing.
std::string_view IniValue(std::string_view text, std::string_view upperKey);

}  // namespace modVantrel
