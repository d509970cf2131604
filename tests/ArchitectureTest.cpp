// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/SourceTree.h"

namespace {

namespace fs = std::filesystem;
using tests::FilesOfTheTree;

const fs::path kRoot = VANTREL_SOURCE_DIR;

// The folders of the program and the ones each may include from, itself aside.
const std::map<std::string, std::vector<std::string>> kMayInclude = {
    {"support", {}},
    {"c3d", {"support"}},
    {"gait", {"support", "c3d"}},
    {"deploy", {"support"}},
    {"visit", {"support", "c3d", "gait"}},
    {"reports", {"support", "c3d", "gait", "visit"}},
    {"pages", {"support", "c3d", "gait", "visit"}},
    {"plot", {"support", "c3d", "gait", "visit", "pages"}},
    {"app", {"support", "c3d", "gait", "visit", "deploy", "reports", "pages", "plot"}},
    {"console", {"support", "c3d", "gait"}},
    {"cli", {"support", "c3d", "gait", "visit", "reports", "console"}},
    {"curves", {"support", "c3d", "gait", "visit", "pages", "plot", "console"}},
    {"python", {"support", "c3d", "gait", "visit", "reports"}},
    {"sample", {"support", "c3d"}},
};

// The folders whose sources may use the toolkit.
const std::vector<std::string> kMayUseQt = {"plot", "app", "curves"};

struct Include {
  std::string File;    // from the root of the tree
  std::string Target;  // as written
  bool Quoted;
};

std::vector<Include> IncludesOf(const fs::path& file) {
  static const std::regex kInclude(R"re(^\s*#\s*include\s*([<"])([^>"]+)[>"])re");
  std::vector<Include> includes;
  std::ifstream text(file);
  for (std::string line; std::getline(text, line);) {
    std::smatch match;
    if (std::regex_search(line, match, kInclude)) {
      includes.push_back({fs::relative(file, kRoot).generic_string(), match[2], match[1] == "\""});
    }
  }
  return includes;
}

// A file's name; one that the build fills in loses its ending ".in".
fs::path FilledInName(const fs::path& file) {
  return file.extension() == ".in" ? file.stem() : file.filename();
}

bool IsCpp(const fs::path& file) {
  static const std::set<std::string> kExtensions = {".cpp", ".h", ".cc", ".cxx", ".hpp", ".inc"};
  return kExtensions.contains(FilledInName(file).extension().string());
}

// The includes of the sources that stand in `folder` itself.
std::vector<Include> IncludesIn(const std::string& folder) {
  std::vector<Include> includes;
  if (!fs::is_directory(kRoot / folder)) return includes;
  for (const auto& entry : fs::directory_iterator(kRoot / folder)) {
    if (!IsCpp(entry.path())) continue;
    for (Include& include : IncludesOf(entry.path())) includes.push_back(std::move(include));
  }
  return includes;
}

// The folder that a quoted include reaches into; empty where it names none.
std::string FolderOf(const std::string& target) {
  const auto slash = target.rfind('/');
  return slash == std::string::npos ? std::string() : target.substr(0, slash);
}

bool IsQtHeader(const std::string& target) {
  static const std::regex kQt(R"(^(Q[A-Z]|Qt|Qsci|q[a-z]+\.h))");
  return std::regex_search(target, kQt);
}

// Whether an include reaches into a folder of the tree, however it is written.
bool IsOfTheTree(const Include& include) {
  const std::string folder = FolderOf(include.Target);
  return !folder.empty() && (include.Quoted || kMayInclude.contains(folder));
}

TEST(Architecture, LayersStandInNoCircle) {
  for (const auto& [folder, below] : kMayInclude) {
    for (const std::string& lower : below) {
      const auto& lowest = kMayInclude.at(lower);
      EXPECT_TRUE(std::ranges::find(lowest, folder) == lowest.end()) << folder << ", " << lower;
      for (const std::string& reached : lowest) {
        EXPECT_TRUE(std::ranges::find(below, reached) != below.end())
            << folder << " reaches " << reached << " by " << lower << " alone";
      }
    }
  }
}

TEST(Architecture, EveryFolderIncludesFromTheLayersBelowOnly) {
  std::size_t checked = 0;
  for (const auto& [folder, below] : kMayInclude) {
    for (const Include& include : IncludesIn(folder)) {
      if (!IsOfTheTree(include)) continue;
      ++checked;
      const std::string target = FolderOf(include.Target);
      EXPECT_TRUE(target == folder || std::ranges::find(below, target) != below.end())
          << include.File << " includes " << include.Target;
    }
  }
  EXPECT_GT(checked, 0U);
}

TEST(Architecture, OnlyTheWindowUsesQt) {
  std::size_t found = 0;
  for (const auto& [folder, below] : kMayInclude) {
    for (const Include& include : IncludesIn(folder)) {
      if (!IsQtHeader(include.Target)) continue;
      ++found;
      EXPECT_TRUE(std::ranges::find(kMayUseQt, folder) != kMayUseQt.end())
          << include.File << " includes " << include.Target;
    }
  }
  EXPECT_GT(found, 0U) << "the window's own are not recognised";
}

// By its name. The metadata of the desktop have a field for their own terms, and the stand-ins are
// compared byte for byte with what a program writes.
bool IsSource(const fs::path& file) {
  static const std::set<std::string> kExtensions = {".sh",  ".bash",    ".cmake",    ".py",  ".pyi",
                                                    ".rc",  ".1",       ".nsi",      ".nsh", ".svg",
                                                    ".xml", ".desktop", ".manifest", ".reg"};
  static const std::set<std::string> kNames = {"CMakeLists.txt", "run",           "postinst",
                                               "prerm",          ".clang-format", ".clang-tidy",
                                               ".gitignore",     ".gitattributes"};
  if (file.stem() == "org.vantrel.vantrel.metainfo.xml") return false;
  if (file.generic_string().starts_with("tests/deploy/stand-ins/")) return false;
  return IsCpp(file) || kExtensions.contains(FilledInName(file).extension().string()) ||
         kNames.contains(file.filename().string());
}

// Whether one of the first three lines is a comment that names it: a script and XML have another
// line in front of it.
bool NamesItsLicence(const fs::path& file) {
  static const std::regex kLine(
      R"(^(//|#|;|\.\\"|<!--) SPDX-License-Identifier: GPL-3\.0-or-later( -->)?\r?$)");
  std::ifstream text(file);
  std::string line;
  for (int i = 0; i < 3 && std::getline(text, line); ++i) {
    if (std::regex_match(line, kLine)) return true;
  }
  return false;
}

TEST(Architecture, EverySourceFileNamesItsLicence) {
  std::size_t checked = 0;
  for (const std::string& file : FilesOfTheTree()) {
    if (!IsSource(file)) continue;
    ++checked;
    EXPECT_TRUE(NamesItsLicence(kRoot / file)) << file;
  }
  EXPECT_GT(checked, 0U);
}

TEST(Architecture, EverySourceFolderOfTheTreeIsKnown) {
  for (const std::string& file : FilesOfTheTree()) {
    if (!IsCpp(file)) continue;
    if (file.starts_with("tests/") || file.starts_with("bench/") || file.starts_with("fuzz/")) {
      continue;
    }
    EXPECT_TRUE(kMayInclude.contains(FolderOf(file))) << file << " stands in no known layer";
  }
}

}  // namespace
