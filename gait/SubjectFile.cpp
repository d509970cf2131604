// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/SubjectFile.h"

#include <algorithm>
#include <bit>
#include <span>

#include "support/FileSystem.h"
#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

namespace {

constexpr std::string_view kLineEnds = "\r\n";

std::string_view TrimmedOfWhiteSpace(std::string_view text) {
  constexpr std::string_view kWhite = " \t\v\f";
  const auto first = text.find_first_not_of(kWhite);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kWhite) - first + 1);
}

std::string_view Unquoted(std::string_view value) {
  for (const char quote : {'"', '\''}) {
    if (value.size() > 1 && value.starts_with(quote) && value.ends_with(quote)) {
      return TrimmedOfWhiteSpace(value.substr(1, value.size() - 2));
    }
  }
  return value;
}

// The bytes behind the mark as UTF-16; half a character at the end is left out.
std::u16string Utf16(std::string_view bytes, std::endian order) {
  std::u16string text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const unsigned first = static_cast<unsigned char>(bytes[i]);
    const unsigned second = static_cast<unsigned char>(bytes[i + 1]);
    const unsigned unit =
        order == std::endian::little ? first | (second << 8U) : second | (first << 8U);
    text += static_cast<char16_t>(unit);
  }
  return text;
}

std::string Decoded(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xFE")) {
    return modAllPurpose::FromUtf16(Utf16(bytes.substr(2), std::endian::little));
  }
  if (bytes.starts_with("\xFE\xFF")) {
    return modAllPurpose::FromUtf16(Utf16(bytes.substr(2), std::endian::big));
  }
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
  return std::string(bytes);
}

}  // namespace

std::string SubjectFileOf(const std::string& trial) {
  return std::string(modAllPurpose::FolderPart(trial)).append(kSubjectFileName);
}

std::string ReadSubjectFile(const std::string& trial) {
  std::string text;
  modAllPurpose::IgnoringErrors([&] {
    modAllPurpose::RandomAccessFile file;
    file.Open(SubjectFileOf(trial));
    std::string bytes(kLargestSubjectFile + 1, '\0');
    bytes.resize(file.ReadAt(0, std::as_writable_bytes(std::span(bytes))));
    text = SubjectFileText(bytes);
  });
  return text;
}

std::string SubjectFileText(std::string_view bytes) {
  std::string text = Decoded(bytes.substr(0, kLargestSubjectFile));
  if (bytes.size() > kLargestSubjectFile) text.erase(text.find_last_of(kLineEnds) + 1);
  return text;
}

std::string_view IniValue(std::string_view text, std::string_view upperKey) {
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find_first_of(kLineEnds));
    text.remove_prefix(std::min(text.size(), line.size() + 1));
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    if (modAllPurpose::UpperCase(TrimmedOfWhiteSpace(line.substr(0, equals))) == upperKey) {
      return Unquoted(TrimmedOfWhiteSpace(line.substr(equals + 1)));
    }
  }
  return {};
}

}  // namespace modVantrel
