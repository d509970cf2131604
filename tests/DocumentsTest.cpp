// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <cctype>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <iterator>
#include <locale>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/SourceTree.h"

// What several documents say of the version and the licence, each by hand, is the same in all.
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kLicence = "GPL-3.0-or-later";

std::string TextOf(const std::string& document) {
  std::ifstream file(std::filesystem::path(VANTREL_SOURCE_DIR) / document);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct Release {
  std::string Version;
  std::string Date;

  friend bool operator==(const Release&, const Release&) = default;
};

void PrintTo(const Release& release, std::ostream* stream) {
  *stream << release.Version << " of " << release.Date;
}

// All that `pattern` finds in a document, a version and its date, in their order.
std::vector<Release> ReleasesIn(const std::string& document, const std::string& pattern) {
  const std::string text = TextOf(document);
  const std::regex regex(pattern);
  std::vector<Release> releases;
  for (std::sregex_iterator next(text.begin(), text.end(), regex), end; next != end; ++next) {
    std::string version = (*next)[1];
    if (version == "@PROJECT_VERSION@") version = VANTREL_VERSION;
    releases.push_back({version, (*next)[2]});
  }
  return releases;
}

std::vector<Release> Changes() {
  return ReleasesIn("CHANGELOG.md", "\n## ([0-9.]+) \u2014 ([0-9-]+)\n");
}

TEST(Documents, ChangesBeginWithThisVersion) {
  ASSERT_FALSE(Changes().empty());
  EXPECT_EQ(Changes().front().Version, VANTREL_VERSION);
}

TEST(Documents, ManPagesAreThoseOfThisVersion) {
  for (const std::string page : {"vantrel.1", "vantrel-curves.1", "vantrel-report.1"}) {
    const std::string text = TextOf("packaging/man/" + page);
    EXPECT_THAT(text, HasSubstr("\" \"Vantrel " VANTREL_VERSION "\" \"User Commands\"\n")) << page;
  }
}

TEST(Documents, DesktopMetadataListTheReleasesOfTheChanges) {
  EXPECT_EQ(ReleasesIn("packaging/desktop/org.vantrel.vantrel.metainfo.xml.in",
                       "<release version=\"([^\"]+)\" date=\"([^\"]+)\"/>"),
            Changes());
}

TEST(Documents, PackageIsOfTheDayOfItsRelease) {
  const auto packages =
      ReleasesIn("packaging/debian/changelog.in",
                 R"(^vantrel \(([^)]+)\)[^]*\n -- [^>]*>  \w+, (\d+ \w+ \d+) 12:00:00 \+0000\n)");
  ASSERT_EQ(packages.size(), 1U);
  std::tm day{};
  std::istringstream text(packages[0].Date);
  text.imbue(std::locale::classic());
  text >> std::get_time(&day, "%d %b %Y");
  std::ostringstream date;
  date << std::put_time(&day, "%Y-%m-%d");
  EXPECT_EQ((Release{packages[0].Version, date.str()}), Changes().front());
}

TEST(Documents, LicenceIsTheSameInAllOfThem) {
  EXPECT_THAT(TextOf("LICENSE"), HasSubstr(kLicence));
  EXPECT_THAT(TextOf("LICENSE"), HasSubstr("/usr/share/common-licenses/GPL-3 "));
  EXPECT_THAT(TextOf("LICENSE"), HasSubstr("https://www.gnu.org/licenses/gpl-3.0.html"));
  EXPECT_THAT(TextOf("packaging/desktop/org.vantrel.vantrel.metainfo.xml.in"),
              HasSubstr("<project_license>" + std::string(kLicence) + "</project_license>"));
  EXPECT_THAT(TextOf("packaging/debian/copyright"), HasSubstr("\nLicense: GPL-3+\n"));
  EXPECT_THAT(TextOf("cmake/mingw/Program.rc.in"),
              HasSubstr("\"Copyright the Vantrel maintainers. " + std::string(kLicence) + ".\""));
  EXPECT_THAT(TextOf("app/AboutText.cpp"), HasSubstr("Licence: " + std::string(kLicence) + ". "));
  EXPECT_THAT(TextOf("README.md"),
              HasSubstr("[GNU General Public License](LICENSE), version 3 or later"));
}

void AddWords(const std::string& text, std::set<std::string>& words) {
  std::string word;
  for (const char letter : text + '\n') {
    if (std::isalnum(static_cast<unsigned char>(letter)) != 0 || letter == '_') {
      word += letter;
    } else if (!word.empty()) {
      words.insert(std::exchange(word, {}));
    }
  }
}

// Names of the code, such as FileState or kReports, and paths of the tree, such as app/FormRows.
TEST(Documents, TheTourNamesWhatIsThere) {
  static const std::regex kCodeName("[A-Za-z]*[a-z0-9][A-Z]\\w*");
  static const std::regex kTreePath("[a-z]\\w*/[\\w./-]*");
  const std::vector<std::string> files = tests::FilesOfTheTree();
  std::set<std::string> words;
  for (const std::string& file : files) {
    AddWords(file, words);
    if (!file.ends_with(".md")) AddWords(TextOf(file), words);
  }
  static const std::regex kQuoted("`([^`\n]+)`");
  const std::string tour = TextOf("docs/tour.md");
  std::size_t checked = 0;
  for (std::sregex_iterator next(tour.begin(), tour.end(), kQuoted), end; next != end; ++next) {
    std::string name = (*next)[1];
    name.erase(std::min(name.find("..."), name.size()));  // what several files begin with
    const bool isPath = std::regex_match(name, kTreePath);
    if (!isPath && !std::regex_match(name, kCodeName)) continue;
    ++checked;
    const auto begins = [&](const std::string& file) { return file.starts_with(name); };
    EXPECT_TRUE(isPath ? name.starts_with("build/") || std::ranges::any_of(files, begins)
                       : words.contains(name))
        << name;
  }
  EXPECT_GT(checked, 0U);
}

TEST(Documents, NamedByOtherOnesAreThere) {
  static const std::regex kLink(R"re(\]\(([^):#]+)\))re");
  std::size_t links = 0;
  for (const std::filesystem::path document : tests::FilesOfTheTree()) {
    if (document.extension() != ".md") continue;
    const std::string text = TextOf(document.string());
    ASSERT_THAT(text, StartsWith("# ")) << document;
    for (std::sregex_iterator next(text.begin(), text.end(), kLink), end; next != end; ++next) {
      const auto target = document.parent_path() / (*next)[1].str();
      EXPECT_FALSE(TextOf(target.string()).empty()) << document << " names " << target;
      ++links;
    }
  }
  EXPECT_GT(links, 0U);
}

}  // namespace
