// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/WholeFiles.h"

#include <algorithm>
#include <deque>
#include <filesystem>
#include <map>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "support/FileInWaiting.h"
#include "support/FileSystem.h"
#include "support/Interruption.h"
#include "support/RuntimeError.h"

namespace modAllPurpose {

namespace fs = std::filesystem;

namespace {

// Runs `work`, which writes the file `path`, and names in its errors what they are about.
template <typename Work>
auto Naming(const std::string& path, Work&& work) {
  try {
    return work();
  } catch (const RuntimeError& error) {
    if (!error.About().empty()) throw;
    const bool folderIsMissing = error.Number() == ErrorNumber::PathNotFound;
    throw RuntimeError(error.Number(), folderIsMissing ? std::string(FolderOf(path)) : path);
  }
}

std::optional<FileIdentity> MakeWhereFree(const fs::path& path, std::string_view text) {
  FileInWaiting file(path.parent_path(), text, nullptr);
  const FileIdentity identity = file.Identity();
  if (!file.TakeNameIfFree(path)) return std::nullopt;
  return identity;
}

// Makes the file or replaces it; false where it came or went meanwhile.
bool MakeOrReplace(const fs::path& path, std::string_view text) {
  const auto old = FindFileToReplace(path);
  if (!old) return MakeWhereFree(path, text).has_value();
  FileInWaiting(old->Path.parent_path(), text, &*old).TakePlaceOf(old->Path);
  return true;
}

// A file that is complete on disk, and what it is to take the place of.
class Replacement {
 public:
  explicit Replacement(const WholeFile& file)
      : wanted_(file),
        old_(FindFileToReplace(NativePath(file.Path))),
        new_(Folder(), file.Text, old_ ? &*old_ : nullptr) {}

  void TakePlace() {
    if (old_) {
      new_.TakePlaceOf(old_->Path);
    } else if (!new_.TakeNameIfFree(NativePath(wanted_.Path))) {
      WriteFileInOneStep(wanted_.Path, wanted_.Text);  // the name was taken meanwhile
    }
  }
  const WholeFile& File() const { return wanted_; }

 private:
  fs::path Folder() const { return (old_ ? old_->Path : NativePath(wanted_.Path)).parent_path(); }

  const WholeFile& wanted_;
  std::optional<FileToReplace> old_;
  FileInWaiting new_;
};

// Files that are taken away again unless they are kept.
class FilesOnTrial {
 public:
  FilesOnTrial() = default;
  FilesOnTrial(const FilesOnTrial&) = delete;
  FilesOnTrial& operator=(const FilesOnTrial&) = delete;
  ~FilesOnTrial() {
    for (const auto& [path, identity] : files_) DeleteIfStill(path, identity);
  }

  void Add(fs::path path, const FileIdentity& identity) {
    files_.emplace_back(std::move(path), identity);
  }
  void Keep() { files_.clear(); }

 private:
  std::vector<std::pair<fs::path, FileIdentity>> files_;
};

// Ends a work that is better taken back than finished; the program ends before the error is told.
void ThrowIfInterrupted(const WholeFile& next) {
  if (!UnbrokenWork::IsInterrupted()) return;
  throw RuntimeError(ErrorNumber::PathFileAccessError, next.Path);
}

// In the order of their names, however each of them is written.
std::vector<const WholeFile*> InOrder(std::span<const WholeFile> files) {
  std::multimap<std::string, const WholeFile*> byName;
  for (const WholeFile& file : files) byName.emplace(OneSpelling(file.Path), &file);
  std::vector<const WholeFile*> ordered;
  for (const auto& entry : byName) ordered.push_back(entry.second);
  return ordered;
}

}  // namespace

fs::path NameInWaiting(const fs::path& folder) {
  static thread_local std::random_device random;
  return folder / fmt::format(".vantrel-{:08x}.tmp", random());
}

bool WriteFileWhereFree(const std::string& path, std::string_view text) {
  const UnbrokenWork work;
  return Naming(path, [&] { return MakeWhereFree(NativePath(path), text).has_value(); });
}

std::string WriteFilesWhereFree(std::span<const WholeFile> files) {
  const UnbrokenWork work;
  FilesOnTrial made;
  for (const WholeFile* file : InOrder(files)) {
    ThrowIfInterrupted(*file);
    const auto identity =
        Naming(file->Path, [&] { return MakeWhereFree(NativePath(file->Path), file->Text); });
    if (!identity) return file->Path;
    made.Add(NativePath(file->Path), *identity);
  }
  made.Keep();
  return {};
}

void WriteFileInOneStep(const std::string& path, std::string_view text) {
  const UnbrokenWork work;
  constexpr int kAttempts = 100;
  Naming(path, [&] {
    for (int i = 0; i < kAttempts; ++i) {
      if (MakeOrReplace(NativePath(path), text)) return;
    }
    throw RuntimeError(ErrorNumber::PathFileAccessError);
  });
}

void WriteFilesTogether(std::span<const WholeFile> files, const StepsTogether& steps) {
  const UnbrokenWork work;
  std::deque<Replacement> replacements;
  for (const WholeFile& file : files) {
    ThrowIfInterrupted(file);
    Naming(file.Path, [&] { replacements.emplace_back(file); });
  }
  steps.LastLook();
  for (Replacement& replacement : replacements) {
    Naming(replacement.File().Path, [&] { replacement.TakePlace(); });
    steps.Replaced(replacement.File());
  }
}

}  // namespace modAllPurpose
