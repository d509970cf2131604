// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/RunFiles.h"

#include <memory>
#include <optional>
#include <utility>

#include "console/Complaint.h"
#include "console/Progress.h"
#include "console/Start.h"
#include "console/Usage.h"
#include "support/Interruption.h"

namespace console {

using modAllPurpose::AtItsTurn;
using modAllPurpose::PostPiece;
using modAllPurpose::UnbrokenWork;

namespace {

// What each file that is done holds until its turn at least.
constexpr std::size_t kBytesOfFile = 1024;

// The side of a run that prints, in the thread that began it.
class Printing {
 public:
  Printing(std::size_t count, const Streams& streams, const FileRun& run, int& status)
      : streams_(streams),
        run_(run),
        progress_(streams.Error, count),
        sharesTerminal_(IsTerminal(streams.Output)),
        status_(status) {
    unbroken_.emplace();
  }

  void Print(std::string piece) {
    if (sharesTerminal_) progress_.Hide();
    run_.Print(std::move(piece));
  }

  void Tell(const FileEnd& end) {
    if (sharesTerminal_) progress_.Hide();
    const FileOutcome outcome = end.Tell();
    if (!outcome.Remarks.empty()) progress_.Hide();
    for (const Remark& remark : outcome.Remarks) {
      ComplainOf(remark.About, remark.Message, streams_);
    }
    progress_.Count(outcome.Failed);
    if (outcome.Failed) status_ = kSomeFailed;
  }

  void Meanwhile() {
    if (UnbrokenWork::IsInterrupted()) EndInterrupted();
    progress_.Refresh();
  }

  void Finish() {
    progress_.Hide();
    run_.Close();
  }

 private:
  void EndInterrupted() {
    progress_.Hide();
    try {
      run_.Close();
    } catch (...) {
      // What could not be printed is not asked for any more.
    }
    unbroken_.reset();  // here the program ends
  }

  const Streams& streams_;
  const FileRun& run_;
  Progress progress_;
  bool sharesTerminal_;
  int& status_;
  std::optional<UnbrokenWork> unbroken_;
};

}  // namespace

void RunFiles(const std::vector<std::string>& files, int jobs, const Streams& streams,
              const FileRun& run, int& status) {
  Printing printing(files.size(), streams, run, status);
  modAllPurpose::OrderedWork works;
  works.Count = files.size();
  works.Threads = modAllPurpose::ThreadsFor(jobs);
  works.Work = [&](std::size_t number, const PostPiece& post) {
    const auto end = std::make_shared<FileEnd>(run.Work(number, post));
    return AtItsTurn{[&printing, end] { printing.Tell(*end); }, end->Bytes + kBytesOfFile};
  };
  works.Take = [&](std::string piece) { printing.Print(std::move(piece)); };
  works.Meanwhile = [&] { printing.Meanwhile(); };
  works.Finish = [&] { printing.Finish(); };
  WorkInOrder(works);
}

}  // namespace console
