// SPDX-License-Identifier: GPL-3.0-or-later

#include <string_view>
#include <windows.h>

#include "support/FileSystem.h"
#include "support/FolderEntries.h"
#include "support/RuntimeError.h"
#include "support/WindowsError.h"
#include "support/WindowsHandle.h"
#include "support/WindowsText.h"

// The system itself is asked here rather than the library, which reads another folder where the
// path is long.
namespace modAllPurpose {

namespace {

// A file that is kept elsewhere, as on a server, is no link though it is stored like one.
EntryKind KindOf(const WIN32_FIND_DATAW& found) {
  const bool isStoredElsewhere = (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (isStoredElsewhere && IsReparseTagNameSurrogate(found.dwReserved0)) return EntryKind::Link;
  return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? EntryKind::Folder
                                                                  : EntryKind::File;
}

// The error for a folder in which nothing is found; none for an empty one, as a drive may be.
void ThrowUnlessEmpty(const std::string& folder) {
  const RuntimeError failure = LastFileError();
  const bool isMissing = failure.Number() == ErrorNumber::FileNotFound;
  if (!isMissing && failure.Number() != ErrorNumber::PathNotFound) throw failure;
  if (isMissing && IsFolder(folder)) return;
  throw RuntimeError(IsNameTaken(folder) ? ErrorNumber::PathNotFound : ErrorNumber::FileNotFound);
}

}  // namespace

void ForEachEntry(const std::string& folder, const std::function<void(const FolderEntry&)>& take) {
  if (folder.empty()) throw RuntimeError(ErrorNumber::FileNotFound);
  WIN32_FIND_DATAW found{};
  const OpenSearch search(::FindFirstFileExW((NativePath(folder) / L"*").c_str(), FindExInfoBasic,
                                             &found, FindExSearchNameMatch, nullptr,
                                             FIND_FIRST_EX_LARGE_FETCH));
  if (search.get() == INVALID_HANDLE_VALUE) return ThrowUnlessEmpty(folder);
  do {
    const std::wstring_view name(&found.cFileName[0]);
    if (name != L"." && name != L"..") {
      take({Utf8Text(name, HalfCharacters::Refused), KindOf(found)});
    }
  } while (::FindNextFileW(search.get(), &found) != 0);
  if (::GetLastError() != ERROR_NO_MORE_FILES) throw LastFileError();
}

EntryKind KindBehindLinks(const std::string& path) {
  const OpenHandle file(::CreateFileW(NativePath(path).c_str(), 0, kShareAll, nullptr,
                                      OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  if (!file.IsOpen()) return EntryKind::Unknown;
  BY_HANDLE_FILE_INFORMATION information{};
  if (::GetFileType(file.Get()) != FILE_TYPE_DISK) return EntryKind::Other;
  if (::GetFileInformationByHandle(file.Get(), &information) == 0) return EntryKind::Unknown;
  return (information.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 ? EntryKind::Folder
                                                                        : EntryKind::File;
}

}  // namespace modAllPurpose
