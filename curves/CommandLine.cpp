// SPDX-License-Identifier: GPL-3.0-or-later

#include "curves/CommandLine.h"

#include <algorithm>
#include <utility>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Version.h"
#include "console/ParserChoices.h"
#include "console/ParserWords.h"
#include "support/Text.h"

namespace curves {

using console::AddChoice;
using console::NotEmpty;
using pages::PageKind;

namespace {

constexpr const char* kDescription =
    "Draws pages of the curves of C3D motion-capture files into a PDF, SVG or PNG file, or writes "
    "their values as JSON.";

constexpr const char* kExitStatus =
    "Exit status: 0 all well, 1 a file failed or something asked for is missing (the pages of the "
    "others are still written), 2 wrong usage.";

const console::Choices<plot::Paper> kPapers = {{"a4", plot::Paper::A4},
                                               {"letter", plot::Paper::Letter}};

// What help says behind the options: the pages, one a line, and the exit status.
std::string Footer() {
  std::string text = "\nPages:\n";
  for (const auto& page : pages::kPages) {
    std::string_view remark;
    if (page.Kind == PageKind::Scores) remark = " (needs --normal)";
    if (page.Kind == PageKind::Label) remark = " (needs --label)";
    text += fmt::format("  {:<27} {}{}\n", page.Name, page.Title, remark);
  }
  return text + '\n' + kExitStatus;
}

std::string PageNames() {
  std::vector<std::string_view> names(pages::kPages.size());
  std::ranges::transform(pages::kPages, names.begin(), &pages::PageInfo::Name);
  return fmt::format("{}", fmt::join(names, "|"));
}

std::string RefusalOfPage(const std::string& name) {
  if (pages::FindPage(name) != nullptr) return {};
  return fmt::format("'{}' is none of {}", name, PageNames());
}

// What the command line holds, as far as the request has no room of that form.
struct Given {
  std::vector<std::string> Pages;
  bool Strides = false;
  bool Mean = false;
};

void AddPageOptions(CLI::App& app, Request& request, Given& given) {
  app.add_option("--page", given.Pages,
                 "What to draw, several times for several; kinematics and kinetics where none is "
                 "given")
      ->type_name(PageNames())
      ->allow_extra_args(false)
      ->check(CLI::Validator(RefusalOfPage, ""));
  app.add_flag("--strides", given.Strides, "Draw each stride, as for a single file");
  app.add_flag("--mean", given.Mean,
               "Draw the mean of each side and a band of one standard deviation, as for several "
               "files");
  app.add_option("--normal", request.NormalFile,
                 "File of normal values: the csv of vantrel-report norms, or a GCD file of means "
                 "and deviations")
      ->check(NotEmpty("the name of the file is empty"));
  app.add_option("--label", request.Labels,
                 "Point label, in any case, for the page label; several times for several")
      ->allow_extra_args(false);
}

void AddSheetOptions(CLI::App& app, Request& request) {
  app.add_option("--title", request.Title, "Title on top of each page");
  app.add_option("--subject", request.Subject, "Whose trials they are, below the title");
  AddChoice(app, "--paper", kPapers, request.Sheet.Size, "Size of the sheet");
  app.add_flag("--landscape", request.Sheet.IsLandscape, "Lay the sheet across");
  app.add_flag("--monochrome", request.IsMonochrome,
               "Tell sides apart by dashes and greys, for a black printer");
  app.add_flag("--overwrite", request.Overwrite, "Replace an existing file");
  app.add_option("--output", request.Output,
                 "File to write: .pdf, .svg, .png or .json; several pages of svg and png get -1, "
                 "-2 before the ending")
      ->required();
  app.add_option("TRIAL", request.Files, "C3D files")->required();
}

bool Asks(const Request& request, PageKind kind) {
  return std::ranges::find(request.Kinds, kind) != request.Kinds.end();
}

void TakePages(const Given& given, Request& request) {
  for (const std::string& name : given.Pages) {
    const PageKind kind = pages::FindPage(name)->Kind;
    if (!Asks(request, kind)) request.Kinds.push_back(kind);
  }
  if (request.Kinds.empty()) request.Kinds = {PageKind::Kinematics, PageKind::Kinetics};
}

void TakeOutput(Request& request) {
  request.OutputKind = plot::FileKindOf(request.Output);
  const auto dot = std::min(request.Output.rfind('.'), request.Output.size());
  if (request.OutputKind || modAllPurpose::UpperCase(request.Output.substr(dot)) == ".JSON") {
    return;
  }
  throw CLI::ValidationError(
      "--output", fmt::format("'{}' ends in none of .pdf, .svg, .png, .json", request.Output));
}

void TakeRequest(const Given& given, Request& request) {
  if (given.Strides && given.Mean) throw CLI::ExcludesError("--strides", "--mean");
  if (given.Strides) request.Curves = plot::Shown::Strides;
  if (given.Mean) request.Curves = plot::Shown::Means;
  TakePages(given, request);
  TakeOutput(request);
  if (Asks(request, PageKind::Scores) && request.NormalFile.empty()) {
    throw CLI::RequiresError("the page 'scores'", "--normal");
  }
  if (Asks(request, PageKind::Label) != !request.Labels.empty()) {
    throw request.Labels.empty() ? CLI::RequiresError("the page 'label'", "--label")
                                 : CLI::RequiresError("--label", "the page 'label'");
  }
}

}  // namespace

std::string ProgramAndVersion() { return fmt::format("{} {}", kProgram, console::kVersion); }

std::variant<Request, console::AskedText> ParseCommandLine(
    const std::vector<std::string>& arguments) {
  CLI::App app(kDescription, kProgram);
  app.footer(Footer());
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", ProgramAndVersion());
  Request request;
  Given given;
  AddPageOptions(app, request, given);
  AddSheetOptions(app, request);
  console::TakeValuesOutOfWords(app);
  const auto take = [&] { TakeRequest(given, request); };
  if (auto asked = console::TakeArguments(app, arguments, take)) return *asked;
  return request;
}

}  // namespace curves
