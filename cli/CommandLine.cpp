// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include <algorithm>
#include <sstream>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Version.h"
#include "reports/ReportList.h"

namespace cli {

namespace {

constexpr const char* kDescription =
    "Prints reports of C3D motion-capture files on standard output, for scripts and batches.";

constexpr const char* kExitStatus =
    "Exit status: 0 all well, 1 a file failed or its report was refused (the others are still "
    "printed), 2 wrong usage.";

std::string ReportNames() {
  std::vector<std::string_view> names;
  for (const auto& report : reports::kReports) names.push_back(report.Name);
  return fmt::format("{}", fmt::join(names, ", "));
}

// The options that a report asks for or takes, as a remark behind its description.
std::string RemarkOf(const reports::ReportInfo& report) {
  std::vector<std::string_view> remarks;
  if (report.NeedsLabel) remarks.emplace_back("needs --label");
  if (report.TakesEvents) remarks.emplace_back("takes --events");
  if (report.TakesGroup) remarks.emplace_back("takes --group and --param");
  if (report.WritesGcdFiles) remarks.emplace_back("takes --output-dir and --overwrite");
  return remarks.empty() ? std::string() : fmt::format(" ({})", fmt::join(remarks, ", "));
}

// What help says behind the options: the reports, one a line, and the exit status.
std::string Footer() {
  std::string text = "\nReports:\n";
  for (const auto& report : reports::kReports) {
    text += fmt::format("  {:<27} {}{}\n", report.Name, report.Description, RemarkOf(report));
  }
  return text + '\n' + kExitStatus;
}

// The parser takes an argument such as "[a,b]" for a list and splits it. With a NUL in front, which
// no argument of a process can hold, it stays one text; the options take it away again.
constexpr char kShield = '\0';

void ShieldBrackets(std::vector<std::string>& arguments) {
  for (std::string& argument : arguments) {
    if (argument.starts_with('[')) argument.insert(0, 1, kShield);
  }
}

// "--name=" as "--name" and an empty argument, so that the empty value does not take the argument
// behind it.
std::vector<std::string> SplitEmptyValues(const std::vector<std::string>& arguments) {
  std::vector<std::string> split;
  bool onlyFilesFollow = false;
  for (const std::string& argument : arguments) {
    onlyFilesFollow = onlyFilesFollow || argument == "--";
    if (onlyFilesFollow || !argument.starts_with("--") || !argument.ends_with('=')) {
      split.push_back(argument);
    } else {
      split.push_back(argument.substr(0, argument.size() - 1));
      split.emplace_back();
    }
  }
  return split;
}

void TakeShieldsAway(CLI::App& app) {
  const CLI::Validator unshield(
      [](std::string& value) {
        if (value.starts_with(kShield)) value.erase(0, 1);
        return std::string();
      },
      "");
  for (CLI::Option* option : app.get_options()) option->transform(unshield);
}

void AddOptions(CLI::App& app, Request& request) {
  app.add_option("--label", request.Label, "Point or analog label, in any case");
  app.add_option("--group", request.Group, "Group of the parameter section");
  app.add_option("--param", request.Param, "Parameter of that group");
  app.add_flag("--events", request.Events, "Name the stride events in a point or analog listing");
  app.add_option("--output-dir", request.Gcd.Options.OutputFolder,
                 "Folder for GCD files, instead of the trial's own");
  app.add_flag("--overwrite", request.Gcd.Overwrite, "Let gcd replace existing files");
  app.add_option("--gender", request.Gcd.Options.Subject.Gender,
                 "Gender in the header of GCD files");
  app.add_option("--date-of-birth", request.Gcd.Options.Subject.DateOfBirth,
                 "Date of birth (YYYY-MM-DD) for the age in GCD files");
  app.add_option("--visit-date", request.Gcd.Options.Subject.VisitDate,
                 "Date of the visit (YYYY-MM-DD) for the age in GCD files");
  app.add_option("REPORT", request.Report, "What to print, one of the reports below")
      ->required()
      ->check(CLI::Validator(
          [](const std::string& name) {
            return reports::FindReport(name) != nullptr
                       ? std::string()
                       : fmt::format("there is no report '{}'; there are: {}", name, ReportNames());
          },
          ""));
  app.add_option("FILE", request.Files, "C3D files")->required();
  TakeShieldsAway(app);
}

void CheckRequest(const CLI::App& app, const Request& request) {
  if (request.Param && !request.Group) throw CLI::RequiresError("--param", "--group");
  if (reports::FindReport(request.Report)->NeedsLabel && app.count("--label") == 0) {
    throw CLI::RequiresError("the report '" + request.Report + "'", "--label");
  }
}

AskedText TextOf(const CLI::App& app, const CLI::Success& asked) {
  std::ostringstream text;
  app.exit(asked, text, text);
  if (!text.str().ends_with('\n')) text << '\n';
  return {text.str()};
}

}  // namespace

std::variant<Request, AskedText> ParseCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app(kDescription, "vantrel-report");
  app.footer(Footer());
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", std::string("vantrel-report ") + kVersion);
  Request request;
  AddOptions(app, request);
  try {
    std::vector<std::string> words = SplitEmptyValues(arguments);
    ShieldBrackets(words);
    std::ranges::reverse(words);  // the order in which the parser takes them
    app.parse(std::move(words));
    CheckRequest(app, request);
    return request;
  } catch (const CLI::Success& asked) {
    return TextOf(app, asked);
  } catch (const CLI::ParseError& error) {
    throw UsageError(error.what());
  }
}

}  // namespace cli
