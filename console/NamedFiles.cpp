// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/NamedFiles.h"

#include <algorithm>
#include <iterator>

#include "c3d/TrialFiles.h"
#include "console/Complaint.h"
#include "console/Start.h"
#include "console/Usage.h"
#include "support/FileSystem.h"
#include "support/MessageOf.h"
#include "support/RuntimeError.h"

namespace console {

using modAllPurpose::RuntimeError;

namespace {

// Puts together the files that names stand for.
class NamedFiles {
 public:
  NamedFiles(Folders folders, const Streams& streams) : folders_(folders), streams_(streams) {}

  void Add(const std::string& named) {
    const std::string complaint = modAllPurpose::MessageOf([&] {
      for (const std::string& name : WithoutWildcards(named)) AddOne(name);
      return std::string();
    });
    if (!complaint.empty()) Complain(named, complaint);
  }

  const std::vector<std::string>& Files() const { return files_; }
  bool HasComplained() const { return hasComplained_; }

 private:
  void AddOne(const std::string& name) {
    if (folders_ == Folders::Refused || !modAllPurpose::IsFolder(name)) {
      files_.push_back(name);
    } else {
      AddBelow(name);
    }
  }

  void AddBelow(const std::string& folder) {
    bool isRead = true;
    auto found =
        modVantrel::TrialsBelow(folder, [&](const std::string& unread, const RuntimeError& why) {
          Complain(unread, RuntimeErrorLine(why));
          isRead = false;
        });
    if (found.empty() && isRead) Complain(folder, "no file below it ends in .c3d");
    std::ranges::move(found, std::back_inserter(files_));
  }

  void Complain(const std::string& about, const std::string& complaint) {
    ComplainOf(about, complaint, streams_);
    hasComplained_ = true;
  }

  Folders folders_;
  const Streams& streams_;
  std::vector<std::string> files_;
  bool hasComplained_ = false;
};

}  // namespace

std::vector<std::string> FilesToRead(const std::vector<std::string>& named, Folders folders,
                                     const Streams& streams, int& status) {
  NamedFiles files(folders, streams);
  for (const std::string& name : named) files.Add(name);
  if (files.HasComplained()) status = kSomeFailed;
  return files.Files();
}

}  // namespace console
