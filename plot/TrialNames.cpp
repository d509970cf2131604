// SPDX-License-Identifier: GPL-3.0-or-later

#include "plot/TrialNames.h"

#include <algorithm>
#include <optional>

namespace plot {

namespace {

constexpr std::size_t kMostLines = 2;
constexpr double kLeastName = 500;  // tenths of a point: of a shortened name

QString NameOf(const pages::PageFile& file) {
  return TextOf(std::string_view(file.Name).substr(file.Name.find_last_of("/\\") + 1));
}

// `words` one behind the other, in lines; nothing where they do not fit.
std::optional<std::vector<QString>> InLines(const std::vector<QString>& words,
                                            const TextStyle& style, double room) {
  std::vector<QString> lines(1);
  for (const QString& word : words) {
    const QString longer =
        lines.back().isEmpty() ? word : lines.back() + QStringLiteral("  ") + word;
    if (WidthOf(longer, style) <= room) {
      lines.back() = longer;
    } else if (lines.size() < kMostLines && WidthOf(word, style) <= room) {
      lines.push_back(word);
    } else {
      return std::nullopt;
    }
  }
  return lines;
}

// The first `shown` of the names, each no wider than `width`, and how many more there are.
std::vector<QString> FirstOf(const std::vector<QString>& names, std::size_t shown,
                             const TextStyle& style, double width) {
  std::vector<QString> words;
  for (std::size_t i = 0; i < shown; ++i) words.push_back(Shortened(names[i], style, width));
  if (shown < names.size()) words.push_back(QStringLiteral("+ %1").arg(names.size() - shown));
  return words;
}

}  // namespace

std::vector<QString> TrialNameLines(const std::vector<pages::PageFile>& files,
                                    const TextStyle& style, double room) {
  std::vector<QString> names(files.size());
  std::ranges::transform(files, names.begin(), NameOf);
  double width = room;
  while (width >= kLeastName) {
    if (const auto lines = InLines(FirstOf(names, names.size(), style, width), style, room)) {
      return *lines;
    }
    width *= 0.9;
  }
  for (std::size_t shown = names.size(); shown-- > 0;) {
    const double least = std::min(room, kLeastName);
    if (const auto lines = InLines(FirstOf(names, shown, style, least), style, room)) return *lines;
  }
  return {};
}

}  // namespace plot
