// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "support/RuntimeError.h"

namespace modAllPurpose {

// A table whose entries are numbered from 1. An index outside 1..Count() is error 9.
template <typename Entry>
class OneBasedTable {
 public:
  OneBasedTable() = default;

  // A table of `count` default entries; a count below 1 gives the empty table.
  explicit OneBasedTable(std::int32_t count)
      : entries_(count < 1 ? std::size_t{0} : static_cast<std::size_t>(count)) {}

  std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
  bool IsEmpty() const { return entries_.empty(); }

  Entry& operator[](std::int32_t index) { return entries_[Checked(index)]; }
  const Entry& operator[](std::int32_t index) const { return entries_[Checked(index)]; }

  // Puts `entry` behind the last one.
  void Append(Entry entry) { entries_.push_back(std::move(entry)); }

  // Drops the entry at `index`; those behind it move one place down.
  void Remove(std::int32_t index) {
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(Checked(index)));
  }

  // All entries, counted from 0.
  std::span<Entry> AsSpan() { return entries_; }

  auto begin() { return entries_.begin(); }
  auto end() { return entries_.end(); }
  auto begin() const { return entries_.begin(); }
  auto end() const { return entries_.end(); }

  friend bool operator==(const OneBasedTable&, const OneBasedTable&) = default;

 private:
  std::size_t Checked(std::int32_t index) const {
    if (index < 1 || static_cast<std::size_t>(index) > entries_.size()) {
      throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index) - 1;
  }

  std::vector<Entry> entries_;
};

}  // namespace modAllPurpose
