// SPDX-License-Identifier: GPL-3.0-or-later

#include "python/TableRun.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <variant>

#include "gait/OpenTrial.h"
#include "reports/FileTable.h"
#include "reports/PooledReport.h"
#include "reports/PooledReportList.h"
#include "support/MessageOf.h"
#include "support/OrderedWork.h"

namespace python {

using modAllPurpose::AtItsTurn;
using modAllPurpose::MessageOf;
using reports::PooledReport;

namespace {

// A complaint that ends the work.
struct Stopped {};

// About what the strides of a trial take while they wait, with all labels of a full-body model.
constexpr std::size_t kBytesOfTrial = std::size_t{512} * 1024;
// And a value of a table.
constexpr std::size_t kBytesOfValue = 8;

class Run {
 public:
  Run(const TableRequest& request, TableResult& result) : request_(request), result_(result) {}

  // Works on all files; a complaint that is to stop it does.
  void OverFiles(const std::function<AtItsTurn(const std::string& file)>& work,
                 const std::function<void()>& meanwhile) {
    modAllPurpose::OrderedWork works;
    works.Count = request_.Files.size();
    works.Threads = modAllPurpose::ThreadsFor(request_.Jobs);
    works.Work = [&](std::size_t number, const modAllPurpose::PostPiece& /*post*/) {
      return work(request_.Files[number]);
    };
    works.Meanwhile = meanwhile;
    modAllPurpose::WorkInOrder(works);
  }

  // The rows of one file, which stand in the table at their turn.
  AtItsTurn RowsOf(const std::string& file) const {
    const auto rows = std::make_shared<ColumnTable>(*request_.Report);
    auto said = reports::WriteFileRows(*request_.Report, file, request_.Options, *rows).Said;
    const std::size_t bytes = rows->RowCount() * rows->Columns().size() * kBytesOfValue;
    return {[this, &file, rows, said = std::move(said)] {
              result_.Table->Append(std::move(*rows));
              Complain(file, said);
            },
            bytes};
  }

  // The strides of one file, which the report takes in at their turn.
  AtItsTurn StridesOf(const std::string& file, PooledReport& report) const {
    reports::Complaints said;
    std::function<void()> takeIn;
    std::string failure = MessageOf([&] {
      modVantrel::FileState state;
      std::string refusal = OpenTrial(file, modVantrel::Labels::All, state);
      if (!refusal.empty()) return refusal;
      said = report.Missing(state);
      takeIn = report.Read(state);
      return refusal;
    });
    if (!failure.empty()) said.push_back(std::move(failure));
    return {[this, &file, takeIn, said] { TakeIn(file, takeIn, said); }, kBytesOfTrial};
  }

  void Complain(const std::optional<std::string>& about, const reports::Complaints& said) const {
    for (const std::string& message : said) result_.Complaints.push_back({about, message});
    if (request_.StopsAtComplaint && !said.empty()) throw Stopped();
  }

 private:
  void TakeIn(const std::string& file, const std::function<void()>& takeIn,
              reports::Complaints said) const {
    std::string failure = MessageOf([&] {
      if (takeIn) takeIn();
      return std::string();
    });
    if (!failure.empty()) said.push_back(std::move(failure));
    Complain(file, said);
  }

  const TableRequest& request_;
  TableResult& result_;
};

void MakePooled(const TableRequest& request, TableResult& result, Run& run,
                const std::function<void()>& meanwhile) {
  const auto made =
      reports::MakePooledReport(request.Report->Name, request.Options, request.NormalFile);
  if (const auto* failure = std::get_if<std::string>(&made)) {
    run.Complain(std::nullopt, {*failure});
    return;
  }
  PooledReport& report = *std::get<std::unique_ptr<PooledReport>>(made);
  run.OverFiles([&](const std::string& file) { return run.StridesOf(file, report); }, meanwhile);
  run.Complain(std::nullopt, report.WriteRows(*result.Table));
}

}  // namespace

TableResult MakeTable(const TableRequest& request, const std::function<void()>& meanwhile) {
  TableResult result{std::make_unique<ColumnTable>(*request.Report), {}};
  Run run(request, result);
  try {
    if (request.Report->Pools) {
      MakePooled(request, result, run, meanwhile);
    } else {
      run.OverFiles([&run](const std::string& file) { return run.RowsOf(file); }, meanwhile);
    }
  } catch (const Stopped&) {
    // The complaint says why.
  }
  return result;
}

}  // namespace python
