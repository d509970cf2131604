#include "bench/Budget.h"

#include <iostream>
#include <limits>
#include <map>

#include <benchmark/benchmark.h>
#include <fmt/format.h>

namespace bench {

namespace {

constexpr const char* kTime = "";

// The least of each figure over the repetitions of a benchmark.
class Figures : public benchmark::ConsoleReporter {
 public:
  Figures() : ConsoleReporter(OO_None) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
      Keep(run.run_name.function_name, kTime, run.GetAdjustedCPUTime());
      for (const auto& [name, counter] : run.counters) {
        Keep(run.run_name.function_name, name, counter.value);
      }
    }
    ConsoleReporter::ReportRuns(runs);
  }

  // The figure; not a number where it was not measured.
  double Least(const std::string& benchmark, const std::string& figure) const {
    const auto found = least_.find({benchmark, figure});
    return found == least_.end() ? std::numeric_limits<double>::quiet_NaN() : found->second;
  }

 private:
  void Keep(const std::string& benchmark, const std::string& figure, double value) {
    const auto [place, isNew] = least_.try_emplace({benchmark, figure}, value);
    if (!isNew && value < place->second) place->second = value;
  }

  std::map<std::pair<std::string, std::string>, double> least_;
};

}  // namespace

int RunWithBudgets(int argc, char* argv[], const std::vector<Budget>& budgets) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  Figures figures;
  benchmark::RunSpecifiedBenchmarks(&figures);

  int status = 0;
  for (const Budget& budget : budgets) {
    const double ratio =
        figures.Least(budget.Name, budget.Counter) / figures.Least(budget.Floor, budget.Counter);
    if (!(ratio >= 0)) continue;
    const bool kept = !budget.Most || ratio <= *budget.Most;
    std::cout << fmt::format("{}: {} takes {:.3f} of {}{}{}{}\n",
                             !budget.Most ? "seen"
                             : kept       ? "kept"
                                          : "MISSED",
                             budget.Name, ratio, budget.Floor, budget.Counter.empty() ? "" : " in ",
                             budget.Counter,
                             budget.Most ? fmt::format(", at most {:.3f}", *budget.Most) : "");
    if (!kept) status = 1;
  }
  return status;
}

}  // namespace bench
