// SPDX-License-Identifier: GPL-3.0-or-later

#include "reports/PooledReportList.h"

#include <algorithm>
#include <array>
#include <utility>

#include "reports/NormsReport.h"
#include "reports/ReportList.h"
#include "reports/ScoresReport.h"
#include "reports/VariabilityReport.h"
#include "reports/VisitReport.h"
#include "visit/NormalFile.h"

namespace reports {

namespace {

using Made = std::variant<std::unique_ptr<PooledReport>, std::string>;

Made MakeScores(const TableOptions& options, const std::string& normalFile) {
  auto normals = visit::ReadNormalFile(normalFile);
  if (auto* failure = std::get_if<std::string>(&normals)) return std::move(*failure);
  return MakeScoresReport(options, std::get<visit::Normals>(std::move(normals)));
}

template <std::unique_ptr<PooledReport> (*Make)(const TableOptions&)>
Made MakeByOptions(const TableOptions& options, const std::string& /*normalFile*/) {
  return Make(options);
}

struct Maker {
  std::string_view Name;
  Made (*Make)(const TableOptions& options, const std::string& normalFile);
};

constexpr std::array kMakers = {
    Maker{"visit", MakeByOptions<MakeVisitReport>},
    Maker{"variability", MakeByOptions<MakeVariabilityReport>},
    Maker{"norms", MakeByOptions<MakeNormsReport>},
    Maker{"scores", MakeScores},
};

// Each report of the list that pools is made above.
static_assert(std::ranges::all_of(kReports, [](const ReportInfo& info) {
  return !info.Pools || std::ranges::find(kMakers, info.Name, &Maker::Name) != kMakers.end();
}));

}  // namespace

Made MakePooledReport(std::string_view name, const TableOptions& options,
                      const std::string& normalFile) {
  return std::ranges::find(kMakers, name, &Maker::Name)->Make(options, normalFile);
}

}  // namespace reports
