// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdio>
#include <string>
#include <variant>
#include <vector>

#include "c3d/LabelTables.h"
#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"
#include "pages/MakePages.h"
#include "pages/PageJson.h"
#include "visit/NormalFile.h"

// Prints the pages of trials as JSON, every kind of them, for the script that holds their values
// against tables:
//
//   print-pages [--label NAME]... [--normal FILE] FILE.c3d...
namespace {

struct Arguments {
  std::vector<std::string> Labels;
  std::vector<std::string> Files;
  std::string Normals;
};

Arguments Read(const std::vector<std::string>& given) {
  Arguments arguments;
  for (std::size_t i = 0; i < given.size(); ++i) {
    if (given[i] == "--label") {
      arguments.Labels.push_back(given.at(++i));
    } else if (given[i] == "--normal") {
      arguments.Normals = given.at(++i);
    } else {
      arguments.Files.push_back(given[i]);
    }
  }
  return arguments;
}

std::vector<pages::PageKind> AllKinds() {
  std::vector<pages::PageKind> kinds;
  for (const pages::PageInfo& page : pages::kPages) kinds.push_back(page.Kind);
  return kinds;
}

std::string JsonOf(const Arguments& arguments) {
  std::vector<pages::TrialValues> trials;
  for (const std::string& file : arguments.Files) {
    modVantrel::FileState state;
    if (OpenC3dFile(state, file, modVantrel::FindGaitEvents) != modVantrel::OpenResult::Success) {
      return {};
    }
    AddFurtherLabels(state);
    trials.push_back(pages::ReadTrialValues(state, {AllKinds(), arguments.Labels}));
  }
  pages::PageChoice choice;
  choice.Kinds = AllKinds();
  std::variant<visit::Normals, std::string> normals;
  if (!arguments.Normals.empty()) {
    normals = visit::ReadNormalFile(arguments.Normals);
    choice.Normals = std::get_if<visit::Normals>(&normals);
    if (choice.Normals == nullptr) return {};
  }
  return pages::JsonOf(pages::MakePages(trials, choice));
}

}  // namespace

int main(int argc, char** argv) {
  const std::string json = JsonOf(Read({argv + 1, argv + argc}));
  std::puts(json.c_str());
  return json.empty() ? 1 : 0;
}
