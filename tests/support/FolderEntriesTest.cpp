// SPDX-License-Identifier: GPL-3.0-or-later

#include <filesystem>
#include <fstream>
#include <map>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/FileSystem.h"
#include "support/FolderEntries.h"
#include "tests/DeepFolder.h"
#include "tests/TestTrials.h"

namespace {

namespace fs = std::filesystem;
using modAllPurpose::EntryKind;
using modAllPurpose::Utf8Path;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

std::map<std::string, EntryKind> EntriesOf(const std::string& folder) {
  std::map<std::string, EntryKind> entries;
  modAllPurpose::ForEachEntry(
      folder, [&](const modAllPurpose::FolderEntry& entry) { entries[entry.Name] = entry.Kind; });
  return entries;
}

int ErrorOf(const std::string& folder) {
  return tests::ErrorNumberOf([&] { EntriesOf(folder); });
}

TEST(FolderEntries, AreTheNamesOfAFolderWithTheirKinds) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "gr\xC3\xBC\xC3\x9F.c3d").put('x');
  std::ofstream(folder / ".hidden").put('x');
  fs::create_directory(folder / "below");
  std::ofstream(folder / "below/deeper.c3d").put('x');
  EXPECT_THAT(
      EntriesOf(Utf8Path(folder.Path())),
      UnorderedElementsAre(Pair("gr\xC3\xBC\xC3\x9F.c3d", EntryKind::File),
                           Pair(".hidden", EntryKind::File), Pair("below", EntryKind::Folder)));
  EXPECT_THAT(EntriesOf(Utf8Path(folder / "below") + '/'),
              UnorderedElementsAre(Pair("deeper.c3d", EntryKind::File)));
}

TEST(FolderEntries, OfAnEmptyFolderAreNone) {
  const tests::TemporaryFolder folder;
  EXPECT_THAT(EntriesOf(Utf8Path(folder.Path())), IsEmpty());
}

TEST(FolderEntries, OfWhatIsNoFolderAreAnError) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "file").put('x');
  EXPECT_EQ(ErrorOf(Utf8Path(folder / "missing")), 53);
  EXPECT_EQ(ErrorOf(Utf8Path(folder / "missing/below")), 53);
  EXPECT_EQ(ErrorOf(Utf8Path(folder / "file")), 76);
  EXPECT_EQ(ErrorOf(""), 53);
}

TEST(FolderEntries, BehindALongPathAreThoseOfThatFolder) {
  const tests::DeepFolder folder;
  ASSERT_GT(folder.Path().size(), 300U);
  EXPECT_THAT(EntriesOf(folder.Path()), IsEmpty());
  modAllPurpose::WriteNewFile(folder / "walk.c3d", {});
  tests::MakeFolder(folder / "below");
  EXPECT_THAT(EntriesOf(folder.Path()), UnorderedElementsAre(Pair("walk.c3d", EntryKind::File),
                                                             Pair("below", EntryKind::Folder)));
  EXPECT_EQ(ErrorOf(folder / "missing"), 53);
}

TEST(FolderEntries, AreWhatTheyAreWhereNoLinkLeadsElsewhere) {
  const tests::TemporaryFolder folder;
  std::ofstream(folder / "file").put('x');
  EXPECT_EQ(modAllPurpose::KindBehindLinks(Utf8Path(folder / "file")), EntryKind::File);
  EXPECT_EQ(modAllPurpose::KindBehindLinks(Utf8Path(folder.Path())), EntryKind::Folder);
  EXPECT_EQ(modAllPurpose::KindBehindLinks(Utf8Path(folder / "missing")), EntryKind::Unknown);
}

}  // namespace
