// SPDX-License-Identifier: GPL-3.0-or-later

#include "bench/Budget.h"

#include <algorithm>
#include <cmath>
#include <iostream>

#include <fmt/format.h>

#include "bench/Figures.h"

namespace bench {

namespace {

constexpr int kMissed = 1;
constexpr int kWrongCommandLine = 2;

std::string Duration(double nanoseconds) {
  if (nanoseconds < 1e4) return fmt::format("{:.2f} us", nanoseconds / 1e3);
  return nanoseconds < 1e7 ? fmt::format("{:.1f} us", nanoseconds / 1e3)
                           : fmt::format("{:.1f} ms", nanoseconds / 1e6);
}

// False where the growth is faster than it may be.
bool PrintGrowth(const Growth& growth, double once, double tenfold, double hundredfold) {
  const double first = std::log10(tenfold / once);
  const double second = std::log10(hundredfold / tenfold);
  const bool kept = std::max(first, second) <= growth.MostExponent;
  std::cout << fmt::format("| {} | {} | {} | {} | {:.2f} | {:.2f} | {:.2f} | {} |\n", growth.Name,
                           Duration(once), Duration(tenfold), Duration(hundredfold), first, second,
                           growth.MostExponent, kept ? "kept" : "MISSED");
  return kept;
}

}  // namespace

bool PrintRow(const std::string& what, const std::string& floor, double figure,
              std::optional<double> most) {
  const bool kept = !most || figure <= *most;
  std::cout << fmt::format("| {} | {} | {:.2f} | {} | {} |\n", what, floor, figure,
                           most ? fmt::format("{:.2f}", *most) : "",
                           !most  ? ""
                           : kept ? "kept"
                                  : "MISSED");
  return kept;
}

int RunWithBudgets(int argc, char** argv, const std::vector<Budget>& budgets) {
  Figures figures;
  if (!RunBenchmarks(argc, argv, figures)) return kWrongCommandLine;
  bool kept = !figures.HasFailures();
  for (const Budget& budget : budgets) {
    const double floor = budget.Floor.empty() ? 1 : figures.Least(budget.Floor, budget.Counter);
    const double figure = figures.Least(budget.Name, budget.Counter) / floor;
    if (std::isnan(figure)) continue;
    const std::string in = budget.Counter.empty() ? "" : ", " + budget.Counter;
    kept &= PrintRow(budget.Name + in, budget.Floor, figure, budget.Most);
  }
  return kept ? 0 : kMissed;
}

int RunWithGrowths(int argc, char** argv, const std::vector<Growth>& growths) {
  Figures figures;
  if (!RunBenchmarks(argc, argv, figures)) return kWrongCommandLine;
  bool kept = !figures.HasFailures();
  for (const Growth& growth : growths) {
    const double once = figures.Least(growth.Name, kTime, "1");
    if (std::isnan(once)) continue;
    kept &= PrintGrowth(growth, once, figures.Least(growth.Name, kTime, "10"),
                        figures.Least(growth.Name, kTime, "100"));
  }
  return kept ? 0 : kMissed;
}

}  // namespace bench
