// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Version.h"
#include "cli/ParserWords.h"
#include "gait/SubjectRecord.h"
#include "reports/ReportList.h"

namespace cli {

namespace {

constexpr const char* kDescription =
    "Prints reports of C3D motion-capture files on standard output, for scripts and batches.";

constexpr const char* kExitStatus =
    "Exit status: 0 all well, 1 a file failed or its report was refused (the others are still "
    "printed), 2 wrong usage.";

// The names of the reports, or of those that have a table.
std::string ReportNames(bool onlyTables = false) {
  std::string names;
  for (const auto& report : reports::kReports) {
    if (onlyTables && report.Columns.empty()) continue;
    if (!names.empty()) names += ", ";
    names += report.Name;
  }
  return names;
}

// The options that a report asks for or takes, as a remark behind its description.
std::string RemarkOf(const reports::ReportInfo& report) {
  std::vector<std::string_view> remarks;
  if (report.NeedsLabel) remarks.emplace_back("needs --label");
  if (report.NeedsNormals) remarks.emplace_back("needs --normal");
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

CLI::Validator Date() {
  return {[](const std::string& text) {
            return modVantrel::ParseIsoDate(text)
                       ? std::string()
                       : fmt::format("'{}' is no date of the form YYYY-MM-DD", text);
          },
          ""};
}

CLI::Validator NotEmpty(const char* refusal) {
  return {[refusal](const std::string& text) { return text.empty() ? refusal : std::string(); },
          ""};
}

// A choice of an option and its name.
template <typename Choice>
using Choices = std::map<std::string, Choice>;

const Choices<OutputFormat> kFormats = {
    {"text", OutputFormat::Text}, {"csv", OutputFormat::Csv}, {"json", OutputFormat::Json}};

const Choices<modVantrel::GcdAxes> kAxes = {{"walk", modVantrel::GcdAxes::Walk},
                                            {"anatomical", modVantrel::GcdAxes::Anatomical}};

template <typename Choice>
std::string NamesOf(const Choices<Choice>& choices) {
  std::string names;
  for (const auto& [name, choice] : choices) names += (names.empty() ? "" : "|") + name;
  return names;
}

// The option `name`, whose value is the name of one of `choices`.
template <typename Choice>
void AddChoice(CLI::App& app, const std::string& name, const Choices<Choice>& choices,
               Choice& chosen, const std::string& description) {
  const CLI::Validator isKnown(
      [&choices](const std::string& text) {
        return choices.contains(text) ? std::string()
                                      : fmt::format("'{}' is none of {}", text, NamesOf(choices));
      },
      "");
  app.add_option_function<std::string>(
         name, [&choices, &chosen](const std::string& text) { chosen = choices.at(text); },
         description)
      ->type_name(NamesOf(choices))
      ->check(isKnown);
}

void AddOptions(CLI::App& app, Request& request) {
  app.add_option("--label", request.Options.Labels,
                 "Point or analog label, in any case; several times for a table of several")
      ->allow_extra_args(false);
  app.add_flag("--all-labels", request.Options.AllLabels,
               "In a table: every point or channel, by its place");
  app.add_option("--group", request.Options.Group, "Group of the parameter section");
  app.add_option("--param", request.Options.Param, "Parameter of that group");
  AddChoice(app, "--format", kFormats, request.Format, "Text, or a table of all files");
  app.add_flag("--further-labels", request.FurtherLabels,
               "Let text reports find the labels beyond the 255th too");
  app.add_option("--normal", request.NormalFile,
                 "File of normal values: the csv of norms, or a GCD file of means and deviations");
  app.add_flag("--events", request.Events, "Name the stride events in a point or analog listing");
  app.add_option("--output-dir", request.Gcd.Options.OutputFolder,
                 "Folder for GCD files, instead of the trial's own")
      ->check(NotEmpty("the name of the folder is empty"));
  AddChoice(app, "--axes", kAxes, request.Gcd.Options.Axes,
            "Whether sagittal and coronal curves of GCD files follow the walk");
  app.add_flag("--overwrite", request.Gcd.Overwrite, "Let gcd replace existing files");
  app.add_option("--gender", request.Gcd.Options.Subject.Gender,
                 "Gender in the header of GCD files");
  app.add_option("--date-of-birth", request.Gcd.Options.Subject.DateOfBirth,
                 "Date of birth (YYYY-MM-DD) for the age in GCD files")
      ->check(Date());
  app.add_option("--visit-date", request.Gcd.Options.Subject.VisitDate,
                 "Date of the visit (YYYY-MM-DD) for the age in GCD files")
      ->check(Date());
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
  TakeValuesOutOfWords(app);
}

void CheckLabels(const Request& request, const reports::ReportInfo& report) {
  const bool isText = request.Format == OutputFormat::Text;
  const auto count = request.Options.Labels.size();
  if (isText && request.Options.AllLabels) throw CLI::RequiresError("--all-labels", "--format");
  if (isText && count > 1 && report.NeedsLabel) {
    throw CLI::ValidationError("--label", "a text report takes one label; tables take several");
  }
  if (report.NeedsLabel && count == 0 && !request.Options.AllLabels) {
    throw CLI::RequiresError("the report '" + request.Report + "'", "--label");
  }
}

void CheckNormals(const Request& request, const reports::ReportInfo& report) {
  if (report.NeedsNormals && request.NormalFile.empty()) {
    throw CLI::RequiresError("the report '" + request.Report + "'", "--normal");
  }
}

void CheckRequest(const Request& request) {
  if (request.Options.Param && !request.Options.Group) {
    throw CLI::RequiresError("--param", "--group");
  }
  const reports::ReportInfo& report = *reports::FindReport(request.Report);
  if (request.Format != OutputFormat::Text && report.Columns.empty()) {
    throw CLI::ValidationError("--format", fmt::format("'{}' has no table; there are tables of: {}",
                                                       request.Report, ReportNames(true)));
  }
  CheckLabels(request, report);
  CheckNormals(request, report);
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
  ParserWords words = WordsOf(arguments, app);
  std::string refusal;
  try {
    std::ranges::reverse(words.Words);  // the order in which the parser takes them
    app.parse(std::move(words.Words));
    CheckRequest(request);
  } catch (const CLI::Success& asked) {
    return TextOf(app, asked);
  } catch (const CLI::ParseError& error) {
    refusal = error.what();
  }
  if (!words.FlagWithValue.empty()) {
    refusal = fmt::format("{} takes no value", words.FlagWithValue);
  }
  if (!words.UnknownOption.empty()) {
    refusal = fmt::format("there is no option '{}'", words.UnknownOption);
  }
  if (!refusal.empty()) throw UsageError(refusal);
  return request;
}

}  // namespace cli
