// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/SubjectFileEdit.h"

#include <algorithm>
#include <span>

#include "gait/SubjectFile.h"
#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"
#include "support/Text.h"
#include "support/WholeFiles.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;

namespace {

constexpr std::string_view kEndsOfLines = "\r\n";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";
constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";

[[noreturn]] void Refuse(const char* why) {
  throw RuntimeError(ErrorNumber::PathFileAccessError, why);
}

// The bytes of a text file, edited by its characters: one or, behind a mark of UTF-16, two bytes
// each. What is not touched stays as it is.
class EditedFile {
 public:
  explicit EditedFile(std::string_view bytes)
      : bytes_(bytes),
        isBig_(bytes.starts_with(kBigMark)),
        unit_(isBig_ || bytes.starts_with(kLittleMark) ? 2 : 1),
        start_(unit_ == 2 ? kBigMark.size() : 0) {
    if (bytes.starts_with(kUtf8Mark)) start_ = kUtf8Mark.size();
  }

  // The characters behind the mark, those of two bytes that are no ASCII as a question mark.
  std::string Text() const {
    if (unit_ == 1) return bytes_.substr(start_);
    std::string text;
    for (std::size_t i = start_; i + 1 < bytes_.size(); i += 2) {
      const char low = bytes_[isBig_ ? i + 1 : i];
      const bool isAscii = bytes_[isBig_ ? i : i + 1] == '\0' && low >= '\0';
      text += isAscii ? low : '?';
    }
    return text;
  }

  // Puts `ascii` in place of `length` characters from the one at `place`.
  void Replace(std::size_t place, std::size_t length, std::string_view ascii) {
    std::string stored;
    for (const char letter : ascii) {
      if (unit_ == 2 && isBig_) stored += '\0';
      stored += letter;
      if (unit_ == 2 && !isBig_) stored += '\0';
    }
    bytes_.replace(start_ + place * unit_, length * unit_, stored);
  }

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
  bool isBig_;
  std::size_t unit_;
  std::size_t start_;  // of the text, behind the mark
};

std::string_view KeyOf(std::string_view line) {
  line = line.substr(0, line.find('='));
  const auto first = line.find_first_not_of(" \t\v\f");
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(" \t\v\f") - first + 1);
}

struct Line {
  std::size_t Start = 0;
  std::string_view Text;  // without its end
};

// Calls `take` for each line until it answers true; whether one did.
template <typename Take>
bool FindLine(std::string_view text, Take take) {
  for (std::size_t start = 0; start < text.size();) {
    const std::size_t end = std::min(text.find_first_of(kEndsOfLines, start), text.size());
    if (take(Line{start, text.substr(start, end - start)})) return true;
    start = end + 1;
  }
  return false;
}

// The end of the lines of a text: that of its first one.
std::string LineEndOf(std::string_view text) {
  const auto end = text.find_first_of(kEndsOfLines);
  if (end == std::string_view::npos) return "\n";
  return std::string(text.substr(end, text.substr(end).starts_with("\r\n") ? 2 : 1));
}

// Puts the line of a key that has none into the file.
void AddEntry(EditedFile& file, const SubjectEntry& entry) {
  const std::string text = file.Text();
  const std::string lineEnd = LineEndOf(text);
  std::size_t place = text.size();
  FindLine(text, [&place](const Line& line) {
    const auto first = line.Text.find_first_not_of(" \t");
    const bool isSection = first != std::string_view::npos && line.Text[first] == '[';
    if (isSection) place = line.Start;
    return isSection;
  });
  const bool continues = place > 0 && kEndsOfLines.find(text[place - 1]) == std::string_view::npos;
  file.Replace(place, 0, (continues ? lineEnd : "") + entry.Key + " = " + entry.Value + lineEnd);
}

void SetEntry(EditedFile& file, const SubjectEntry& entry) {
  const std::string key = modAllPurpose::UpperCase(entry.Key);
  const std::string text = file.Text();
  std::size_t value = 0;
  std::size_t length = 0;
  const bool known = FindLine(text, [&](const Line& line) {
    const auto equals = line.Text.find('=');
    if (equals == std::string_view::npos) return false;
    value = line.Start + equals + 1;
    length = line.Text.size() - equals - 1;
    return modAllPurpose::UpperCase(KeyOf(line.Text)) == key;
  });
  if (known) {
    file.Replace(value, length, entry.Value.empty() ? "" : ' ' + entry.Value);
  } else if (!entry.Value.empty()) {
    AddEntry(file, entry);
  }
}

// All bytes of the file, or one more than can be taken; nothing where there is none.
std::string BytesOf(const std::string& file) {
  if (!modAllPurpose::IsNameTaken(file)) return {};
  if (!modAllPurpose::IsRegularFile(file)) Refuse("it is no regular file");
  modAllPurpose::RandomAccessFile reader;
  reader.Open(file);
  std::string bytes(kLargestSubjectFile + 1, '\0');
  bytes.resize(reader.ReadAt(0, std::as_writable_bytes(std::span(bytes))));
  return bytes;
}

}  // namespace

std::string WithSubjectEntries(std::string_view bytes, const std::vector<SubjectEntry>& entries) {
  if (bytes.size() > kLargestSubjectFile) Refuse("it is larger than a subject file");
  EditedFile file(bytes);
  if (file.Text().find('\0') != std::string::npos) Refuse("it is no text");
  for (const SubjectEntry& entry : entries) SetEntry(file, entry);
  return file.Bytes();
}

void KeepInSubjectFile(const std::string& trial, const std::vector<SubjectEntry>& entries) {
  const std::string file = SubjectFileOf(trial);
  std::string text;
  try {
    text = WithSubjectEntries(BytesOf(file), entries);
  } catch (const RuntimeError& error) {
    const std::string why = error.About();
    throw RuntimeError(error.Number(), why.empty() || why == file ? file : file + ": " + why);
  }
  if (modAllPurpose::IsNameTaken(file)) {
    modAllPurpose::WriteFileInOneStep(file, text);
  } else if (!modAllPurpose::WriteFileWhereFree(file, text)) {
    throw RuntimeError(ErrorNumber::PathFileAccessError,
                       file + ": another program made it just now");
  }
}

}  // namespace modVantrel
