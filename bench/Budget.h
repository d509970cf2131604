// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace bench {

// How much one benchmark may cost compared with another one of the same run: at most `Most` times
// the floor's processor time, the system's share included, or its counter of that name. Without a
// floor the figure itself is held against the bound; without a bound it is printed for its own
// sake.
struct Budget {
  std::string Name;
  std::string Floor;
  std::optional<double> Most;
  std::string Counter = {};
};

// Runs the registered benchmarks, prints one row of a table for each budget, and returns the exit
// status: 0 where all are kept, 1 where one is missed or a benchmark failed. The fastest repetition
// of a benchmark counts. Budgets whose benchmarks a filter left out are passed over.
int RunWithBudgets(int argc, char** argv, const std::vector<Budget>& budgets);

// A row of that table: what was measured, against what, the figure, its bound and the verdict.
// Answers with the verdict: false where the bound is missed.
bool PrintRow(const std::string& what, const std::string& floor, double figure,
              std::optional<double> most);

// How fast a benchmark may grow. It is registered with the arguments 1, 10 and 100: how many times
// the work.
struct Growth {
  std::string Name;
  double MostExponent;  // 1 where the cost may grow as the work does
};

// The same for growths. The exponent of a step from one size to ten times of it is the logarithm,
// to the base of 10, of how many times the cost has become; the larger of both steps counts.
int RunWithGrowths(int argc, char** argv, const std::vector<Growth>& growths);

}  // namespace bench
