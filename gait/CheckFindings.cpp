// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/CheckFindings.h"

namespace modVantrel {

namespace {

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// The digits that `text` begins with, without zeros in front, which are taken from it.
std::string_view TakeNumber(std::string_view& text) {
  const auto isOther = [](char character) { return !IsDigit(character); };
  const auto count = static_cast<std::size_t>(std::ranges::find_if(text, isOther) - text.begin());
  std::string_view digits = text.substr(0, count);
  text.remove_prefix(count);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return digits;
}

bool StandsBefore(std::string_view left, std::string_view right) {
  while (!left.empty() && !right.empty()) {
    if (IsDigit(left.front()) && IsDigit(right.front())) {
      const std::string_view first = TakeNumber(left);
      const std::string_view second = TakeNumber(right);
      if (first.size() != second.size()) return first.size() < second.size();
      if (first != second) return first < second;
    } else {
      if (left.front() != right.front()) return left.front() < right.front();
      left.remove_prefix(1);
      right.remove_prefix(1);
    }
  }
  return left.size() < right.size();
}

}  // namespace

std::vector<Finding> Findings::Sorted() const {
  std::vector<Entry> sorted = entries_;
  std::ranges::stable_sort(sorted, [](const Entry& left, const Entry& right) {
    return left.Kind == right.Kind ? StandsBefore(left.Place, right.Place) : left.Kind < right.Kind;
  });
  std::vector<Finding> findings;
  for (Entry& entry : sorted) {
    const CheckKind& kind = kCheckKinds.at(entry.Kind);
    findings.push_back(
        {kind.Level, std::string(kind.Code), std::move(entry.Place), std::move(entry.Message)});
  }
  return findings;
}

}  // namespace modVantrel
