// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <mutex>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include <fmt/format.h>

#include "support/Descriptor.h"
#include "support/FileInWaiting.h"
#include "support/RuntimeError.h"

namespace modAllPurpose {

namespace fs = std::filesystem;

// A file's access list, which goes further than its mode, is empty for one that has none.
struct FileRights {
  struct stat Status {};
  std::vector<char> AccessList;
};

namespace {

constexpr mode_t kOwnersAlone = S_IRUSR | S_IWUSR;
constexpr mode_t kNewFile = kOwnersAlone | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
constexpr const char* kAccessList = "system.posix_acl_access";
constexpr int kAttempts = 100;

class OpenDescriptor {
 public:
  explicit OpenDescriptor(int number) : number_(number) {}
  OpenDescriptor(const OpenDescriptor&) = delete;
  OpenDescriptor& operator=(const OpenDescriptor&) = delete;
  ~OpenDescriptor() {
    if (number_ >= 0) ::close(number_);
  }
  int Number() const { return number_; }

 private:
  int number_;
};

RuntimeError Refusal(const fs::path& name, const char* reason) {
  return {ErrorNumber::PathFileAccessError, name.string() + reason};
}

std::vector<char> AccessListOf(int descriptor) {
  const auto size = ::fgetxattr(descriptor, kAccessList, nullptr, 0);
  std::vector<char> list(size > 0 ? static_cast<std::size_t>(size) : 0);
  if (!list.empty() && ::fgetxattr(descriptor, kAccessList, list.data(), list.size()) != size) {
    list.clear();
  }
  return list;
}

FileIdentity IdentityIn(const struct stat& status) {
  return {std::uint64_t{status.st_dev}, std::uint64_t{status.st_ino}};
}

// The rights of each of owner, group and others in `mode`, of which `allowed` (one digit) is all
// that may be left to group and others.
mode_t Narrowed(mode_t mode, mode_t allowed) {
  return mode & (S_ISUID | S_ISGID | S_ISVTX | S_IRWXU | (allowed << 3U) | allowed);
}

constexpr mode_t Group(mode_t mode) { return (mode & S_IRWXG) >> 3U; }
constexpr mode_t Others(mode_t mode) { return mode & S_IRWXO; }
constexpr mode_t Owner(mode_t mode) { return (mode & S_IRWXU) >> 6U; }

// Whom the file belongs to, as far as this user may say so.
struct Kept {
  bool Owner;
  bool Group;
};

Kept GiveTo(int file, const struct stat& old) {
  const auto sameOwner = static_cast<uid_t>(-1);
  const bool group = ::fchown(file, sameOwner, old.st_gid) == 0;
  struct stat now {};
  if (::fstat(file, &now) != 0) return {false, group};
  const bool owner =
      now.st_uid == old.st_uid || ::fchown(file, old.st_uid, static_cast<gid_t>(-1)) == 0;
  return {owner, group};
}

// Somebody whom the mode counted among one kind of user and now counts among another must not have
// got more than before: what could not be kept leaves what both kinds had. Whom a lost access list
// kept out the mode does not say, so that without it the file stays its owner's alone.
mode_t ModeFor(const FileRights& old, Kept kept, bool listKept) {
  mode_t mode = old.Status.st_mode & ~static_cast<mode_t>(S_IFMT);
  if (!kept.Group)
    mode = Narrowed(mode, Group(mode) & Others(mode)) & ~static_cast<mode_t>(S_ISGID);
  if (!kept.Owner) mode = Narrowed(mode, Owner(mode)) & ~static_cast<mode_t>(S_ISUID);
  if (!old.AccessList.empty() && !listKept) mode = Narrowed(mode, 0);
  return mode;
}

// `file` has been its owner's alone until now. A list that it has from its folder would open it to
// those of whom the old file knew nothing.
void TakeRights(int file, const FileRights& old) {
  const Kept kept = GiveTo(file, old.Status);
  const bool listKept =
      kept.Owner && kept.Group && !old.AccessList.empty() &&
      ::fsetxattr(file, kAccessList, old.AccessList.data(), old.AccessList.size(), 0) == 0;
  if (!listKept) ::fremovexattr(file, kAccessList);
  if (::fchmod(file, ModeFor(old, kept, listKept)) != 0) throw FileErrorFromErrno(errno);
}

std::string LinkToDescriptor(int descriptor) { return fmt::format("/proc/self/fd/{}", descriptor); }

// A descriptor for a file without a name, below 0 where the system has no such files or no way to
// give one a name.
int MakeUnnamed(const fs::path& folder, mode_t mode) {
#ifdef O_TMPFILE
  const int file = ::open(folder.c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
  if (file < 0 || ::access(LinkToDescriptor(file).c_str(), F_OK) == 0) return file;
  ::close(file);
#endif
  return -1;
}

bool GiveName(int unnamed, const fs::path& name) {
  return ::linkat(AT_FDCWD, LinkToDescriptor(unnamed).c_str(), AT_FDCWD, name.c_str(),
                  AT_SYMLINK_FOLLOW) == 0;
}

// Renames where the new name is free. Not every file system can do so in one step; then the file
// has both names for a moment.
bool RenameIfFree(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
  if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return true;
  if (errno != EINVAL && errno != ENOSYS) return false;
#endif
  if (::link(from.c_str(), to.c_str()) != 0) return false;
  ::unlink(from.c_str());
  return true;
}

// In a sticky folder, a file's name can be given to another one by the owner of either alone.
bool MayLoseItsName(const fs::path& path, const struct stat& file) {
  const fs::path folder = path.has_parent_path() ? path.parent_path() : ".";
  struct stat status {};
  if (::stat(folder.c_str(), &status) != 0 || (status.st_mode & S_ISVTX) == 0) return true;
  const uid_t user = ::geteuid();
  return user == 0 || user == file.st_uid || user == status.st_uid;
}

// Some devices have nothing to bring a file to; they say so.
bool BringToDisk(int file) {
  return ::fsync(file) == 0 || errno == EINVAL || errno == ENOSYS || errno == EROFS;
}

}  // namespace

std::optional<FileToReplace> FindFileToReplace(const fs::path& name) {
  struct stat status {};
  if (::lstat(name.c_str(), &status) != 0) {
    if (errno == ENOENT) return std::nullopt;
    throw FileErrorFromErrno(errno);
  }
  if (::stat(name.c_str(), &status) != 0) throw Refusal(name, " is a link that leads nowhere");
  if (!S_ISREG(status.st_mode)) throw Refusal(name, " is no regular file");
  // Replacing a file needs no right to write it, so that right is asked for here.
  const OpenDescriptor file(::open(name.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (file.Number() < 0) throw FileErrorFromErrno(errno);
  FileRights rights;
  if (::fstat(file.Number(), &rights.Status) != 0) throw FileErrorFromErrno(errno);
  if (!S_ISREG(rights.Status.st_mode)) throw Refusal(name, " is no regular file");
  rights.AccessList = AccessListOf(file.Number());
  std::error_code failure;
  fs::path path = fs::is_symlink(name, failure) ? fs::canonical(name, failure) : name;
  if (failure) throw FileErrorFromCode(failure);
  if (!MayLoseItsName(path, rights.Status)) throw FileErrorFromErrno(EPERM);
  return FileToReplace{std::move(path), std::make_shared<const FileRights>(std::move(rights))};
}

std::optional<FileIdentity> IdentityOf(const fs::path& name) {
  struct stat status {};
  if (::stat(name.c_str(), &status) != 0) return std::nullopt;
  return IdentityIn(status);
}

void DeleteIfStill(const fs::path& name, const FileIdentity& file) noexcept {
  struct stat status {};
  if (::lstat(name.c_str(), &status) != 0 || IdentityIn(status) != file) return;
  ::unlink(name.c_str());
}

FileInWaiting::FileInWaiting(const fs::path& folder, std::string_view text,
                             const FileToReplace* old, Named named)
    : folder_(folder.empty() ? "." : folder) {
  if (named == Named::WhereItMust) {
    handle_ = MakeUnnamed(folder_, old == nullptr ? kNewFile : kOwnersAlone);
  }
  if (handle_ < 0) MakeNamed(folder_, old);
  try {
    Write(text);
    if (old != nullptr) TakeRights(Descriptor(handle_), *old->Rights);
    if (!BringToDisk(Descriptor(handle_))) throw FileErrorFromErrno(errno);
  } catch (...) {
    Discard();
    throw;
  }
}

void FileInWaiting::MakeNamed(const fs::path& folder, const FileToReplace* old) {
  errno = EEXIST;
  for (int i = 0; i < kAttempts && handle_ < 0 && errno == EEXIST; ++i) {
    name_ = NameInWaiting(folder);
    handle_ = ::open(name_.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC,
                     old == nullptr ? kNewFile : kOwnersAlone);
  }
  if (handle_ >= 0) return;
  // A new file that cannot be found means that its folder is not there.
  if (errno == ENOENT) throw RuntimeError(ErrorNumber::PathNotFound);
  throw FileErrorFromErrno(errno);
}

void FileInWaiting::Write(std::string_view text) const {
  while (!text.empty()) {
    const auto count = ::write(Descriptor(handle_), text.data(), text.size());
    if (count < 0 && errno != EINTR) throw FileErrorFromErrno(errno);
    if (count > 0) text.remove_prefix(static_cast<std::size_t>(count));
  }
}

void FileInWaiting::Discard() noexcept {
  if (!name_.empty()) ::unlink(name_.c_str());
  if (handle_ >= 0) ::close(Descriptor(handle_));
}

FileInWaiting::~FileInWaiting() { Discard(); }

FileIdentity FileInWaiting::Identity() const {
  struct stat status {};
  if (::fstat(Descriptor(handle_), &status) != 0) throw FileErrorFromErrno(errno);
  return IdentityIn(status);
}

bool FileInWaiting::TakeNameIfFree(const fs::path& name) {
  const bool taken =
      name_.empty() ? !GiveName(Descriptor(handle_), name) : !RenameIfFree(name_, name);
  if (taken && errno == EEXIST) return false;
  if (taken) throw FileErrorFromErrno(errno);
  name_.clear();
  return true;
}

void FileInWaiting::TakePlaceOf(const fs::path& name) {
  // One at a time, so that threads that wait for the same folder do not wait with a name each: what
  // is left where the program is killed right here is one file at most.
  static std::mutex oneAtATime;
  const std::lock_guard lock(oneAtATime);
  for (int i = 0; i < kAttempts && name_.empty(); ++i) {
    const fs::path own = NameInWaiting(folder_);
    if (GiveName(Descriptor(handle_), own)) {
      name_ = own;
    } else if (errno != EEXIST) {
      break;
    }
  }
  if (name_.empty() || ::rename(name_.c_str(), name.c_str()) != 0) throw FileErrorFromErrno(errno);
  name_.clear();
}

}  // namespace modAllPurpose
