// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "console/Streams.h"
#include "support/OrderedWork.h"

namespace console {

// What is said on the error stream about a file or about something else.
struct Remark {
  std::string About;
  std::string Message;
};

// What became of one file of a run.
struct FileOutcome {
  std::vector<Remark> Remarks;
  bool Failed = false;
};

// What the work on a file leaves for its turn.
struct FileEnd {
  std::function<FileOutcome()> Tell;
  std::size_t Bytes = 0;  // that it holds until then, about
};

// What a command does with each of its files.
struct FileRun {
  // Works on the file of that number, from 0, in any thread. No error of the file may escape.
  std::function<FileEnd(std::size_t number, const modAllPurpose::PostPiece& post)> Work;
  // Prints a piece that the file posted whose turn it is, by what does not write at once.
  std::function<void(std::string piece)> Print;
  // Ends what is printed: behind the last file, or the last piece before an interruption.
  std::function<void()> Close = [] {};
};

// Works on `files`, `jobs` of them at once (0: one a processor), as WorkInOrder does: what they
// print, and their remarks, come as if one were done after the other. Shows the progress on a
// terminal. An interruption ends the program with the status that it would have without, behind
// the piece that is being printed and Close. A file that failed makes `status` kSomeFailed. Errors
// of Print, Tell and Close end the run and pass.
void RunFiles(const std::vector<std::string>& files, int jobs, const Streams& streams,
              const FileRun& run, int& status);

}  // namespace console
