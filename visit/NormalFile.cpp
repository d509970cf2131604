// SPDX-License-Identifier: GPL-3.0-or-later

#include "visit/NormalFile.h"

#include <span>
#include <utility>

#include <fmt/format.h>

#include "support/RandomAccessFile.h"
#include "support/RuntimeError.h"
#include "visit/NormalCsv.h"
#include "visit/NormalGcd.h"

namespace visit {

namespace {

std::string BytesOf(const std::string& path) {
  modAllPurpose::RandomAccessFile file;
  file.Open(path);
  const std::uint64_t most = kLargestNormalFile + 1;
  std::string bytes(static_cast<std::size_t>(std::min(file.Size(), most)), '\0');
  bytes.resize(file.ReadAt(0, std::as_writable_bytes(std::span(bytes))));
  return bytes;
}

std::string_view WithoutMark(std::string_view text) {
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  return text.starts_with(kUtf8Mark) ? text.substr(kUtf8Mark.size()) : text;
}

}  // namespace

std::variant<Normals, NormalFault> NormalsOfText(std::string_view text) {
  text = WithoutMark(text);
  try {
    if (text.starts_with(kGcdStart)) return NormalsOfGcd(text);
    return NormalsOfCsv(text);
  } catch (const NormalFault& fault) {
    return fault;
  }
}

std::variant<Normals, std::string> ReadNormalFile(const std::string& path) {
  std::string bytes;
  try {
    bytes = BytesOf(path);
  } catch (const modAllPurpose::RuntimeError& error) {
    return fmt::format("{}: {}", path, RuntimeErrorLine(error));
  }
  if (bytes.size() > kLargestNormalFile) {
    return fmt::format("{}: larger than any file of normals", path);
  }
  auto read = NormalsOfText(bytes);
  if (auto* normals = std::get_if<Normals>(&read)) return std::move(*normals);
  const auto& fault = std::get<NormalFault>(read);
  return fmt::format("{}, line {}: {}", path, fault.Line, fault.What);
}

}  // namespace visit
