// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string_view>

// The steps in which WholeFiles.cpp writes a file. Each system has its own; nothing else uses them.
namespace modAllPurpose {

// Who may do what with a file, in the terms of the system.
struct FileRights;

// A file that another one takes the place of.
struct FileToReplace {
  std::filesystem::path Path;  // without links
  std::shared_ptr<const FileRights> Rights;
};

// The regular file that the name `name` leads to, through all of its links; nothing where the name
// is free. Error 75 where the name is that of anything else or of a link that leads nowhere, 70 and
// the like where the file may not be written, or its name not be given to another one.
std::optional<FileToReplace> FindFileToReplace(const std::filesystem::path& name);

// Which file it is, whatever its name.
struct FileIdentity {
  std::uint64_t Volume = 0;
  std::uint64_t Number = 0;

  bool operator==(const FileIdentity&) const = default;
};

// The file that the name `name` leads to, through all of its links; nothing where there is none.
std::optional<FileIdentity> IdentityOf(const std::filesystem::path& name);

// Deletes the file `name` where it is `file` itself and no other one. What is put there in the
// moment between the question and the deletion is lost on a POSIX system, not on Windows.
void DeleteIfStill(const std::filesystem::path& name, const FileIdentity& file) noexcept;

// A file that is complete on disk and waits for its name. Until then it vanishes with this object
// and, where the system can make files without a name, with a program that is killed.
class FileInWaiting {
 public:
  enum class Named { WhereItMust, Always };

  // Makes it of `text` in `folder`: with the rights of a new file, or with those of `old` as far as
  // the system lets it, and never wider ones for anybody. What is left behind of an old file: on a
  // POSIX system its extended attributes other than the access list; on Windows its owner and its
  // other streams. A missing folder is error 76; 57, 61, 70, 75 as FileErrorFromErrno.
  FileInWaiting(const std::filesystem::path& folder, std::string_view text,
                const FileToReplace* old, Named named = Named::WhereItMust);
  FileInWaiting(const FileInWaiting&) = delete;
  FileInWaiting& operator=(const FileInWaiting&) = delete;
  ~FileInWaiting();

  // Before it takes a place.
  FileIdentity Identity() const;

  // Puts the file in place, in one step that fails where the name is taken: then false, and
  // nothing has changed.
  bool TakeNameIfFree(const std::filesystem::path& name);

  // Puts the file in place of the one at `name`, in one step. Where it had no name it has one of
  // its own for the moment between two calls of the system.
  void TakePlaceOf(const std::filesystem::path& name);

 private:
  void MakeNamed(const std::filesystem::path& folder, const FileToReplace* old);
  void Write(std::string_view text) const;
  void Discard() noexcept;
  // On Windows alone: the file stays where it is and is not written any more.
  void StayUnderItsName();

  std::filesystem::path folder_;
  std::filesystem::path name_;  // its own; empty where it has none
  std::intptr_t handle_ = -1;
};

// A name for a file that waits in `folder`, another one at each call.
std::filesystem::path NameInWaiting(const std::filesystem::path& folder);

}  // namespace modAllPurpose
