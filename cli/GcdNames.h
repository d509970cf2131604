// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <cstddef>
#include <map>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace cli {

// Which trial of a command has written each GCD file. The trials have numbers, from 0, by their
// order in the command; several may be at work at once, and still the first of those that want a
// name is the one of the lowest number.
class GcdNames {
 private:
  friend class GcdTurn;

  bool AreSettled(std::size_t number, const std::vector<std::string>& names) const;

  std::mutex mutex_;  // of all below
  std::condition_variable changed_;
  std::size_t unknown_ = 0;      // the first trial whose names are not known yet
  std::set<std::size_t> known_;  // those behind it whose names are
  std::map<std::size_t, std::vector<std::string>> claimed_;  // by trials that are at work
  std::map<std::string, std::string> writers_;
};

// The part of one trial in it. Every trial of the command has one, which ends with the work on the
// trial; those behind it wait for that where they want a name that it claims.
class GcdTurn {
 public:
  // `names` must last as long.
  GcdTurn(GcdNames& names, std::size_t number) : names_(names), number_(number) {}
  GcdTurn(const GcdTurn&) = delete;
  GcdTurn& operator=(const GcdTurn&) = delete;
  ~GcdTurn();

  // Claims the files of those names for `trial`, once, and waits until no trial in front of this
  // one can write one of them any more. Ends with WorkStopped where nobody waits for the work.
  void Claim(const std::string& trial, const std::vector<std::string>& names);

  // The trial in front of this one that has written the file; empty for none.
  std::string WriterOf(const std::string& name) const;

  // Says that the claimed file is written.
  void Wrote(const std::string& name);

 private:
  void SayNames(std::vector<std::string> names);

  GcdNames& names_;
  std::size_t number_;
  std::string trial_;
};

}  // namespace cli
