#pragma once

#include <optional>
#include <string>
#include <vector>

namespace bench {

// How much one benchmark may cost compared with another one of the same run: at most `Most` times
// the floor's processor time, the system's share included, or its counter of that name. Without a
// bound the ratio is printed for its own sake.
struct Budget {
  std::string Name;
  std::string Floor;
  std::optional<double> Most;
  std::string Counter = {};
};

// Runs the registered benchmarks, prints the ratio of each budget that was met or missed, and
// returns the exit status: 0 where all are kept, 1 where one is missed. The fastest repetition of a
// benchmark counts. Budgets whose benchmarks a filter left out are passed over.
int RunWithBudgets(int argc, char* argv[], const std::vector<Budget>& budgets);

}  // namespace bench
