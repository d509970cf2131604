// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include <string_view>

#include <CLI/CLI.hpp>
#include <fmt/format.h>

#include "Version.h"
#include "console/ParserChoices.h"
#include "console/ParserWords.h"
#include "gait/SubjectRecord.h"
#include "reports/ReportList.h"

namespace cli {

using console::AddChoice;
using console::AskedText;
using console::Choices;
using console::NotEmpty;
using console::TakeArguments;
using console::TakeValuesOutOfWords;

namespace {

constexpr const char* kDescription =
    "Prints reports of C3D motion-capture files on standard output, for scripts and batches.";

constexpr const char* kExitStatus =
    "Exit status: 0 all well, 1 a file failed or its report was refused (the others are still "
    "printed), 2 wrong usage.";

// More would only wait for each other.
constexpr int kMostJobs = 256;

bool HasTable(const reports::ReportInfo& report) { return !report.Columns.empty(); }

// The names of the reports, or of those that fit.
std::string ReportNames(bool (*fits)(const reports::ReportInfo&) = nullptr) {
  std::vector<std::string_view> names;
  for (const auto& report : reports::kReports) {
    if (fits == nullptr || fits(report)) names.push_back(report.Name);
  }
  return fmt::format("{}", fmt::join(names, ", "));
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

const Choices<OutputFormat> kFormats = {
    {"text", OutputFormat::Text}, {"csv", OutputFormat::Csv}, {"json", OutputFormat::Json}};

const Choices<modVantrel::GcdAxes> kAxes = {{"walk", modVantrel::GcdAxes::Walk},
                                            {"anatomical", modVantrel::GcdAxes::Anatomical}};

// What concerns GCD files alone.
void AddGcdOptions(CLI::App& app, GcdRequest& request) {
  app.add_option("--output-dir", request.Options.OutputFolder,
                 "Folder for GCD files, instead of the trial's own")
      ->check(NotEmpty("the name of the folder is empty"));
  AddChoice(app, "--axes", kAxes, request.Options.Axes,
            "Whether sagittal and coronal curves of GCD files follow the walk");
  app.add_flag("--overwrite", request.Overwrite, "Let gcd replace existing files");
  app.add_option("--gender", request.Options.Subject.Gender, "Gender in the header of GCD files");
  app.add_option("--date-of-birth", request.Options.Subject.DateOfBirth,
                 "Date of birth (YYYY-MM-DD) for the age in GCD files")
      ->check(Date());
  app.add_option("--visit-date", request.Options.Subject.VisitDate,
                 "Date of the visit (YYYY-MM-DD) for the age in GCD files")
      ->check(Date());
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
  AddGcdOptions(app, request.Gcd);
  app.add_flag_callback(
      "--recursive", [&request] { request.Folders = console::Folders::Searched; },
      "Take folders: every .c3d file below, links to folders not followed");
  app.add_option("--jobs", request.Jobs, "Work on that many files at once; 0: one a processor")
      ->check(CLI::Range(0, kMostJobs));
  app.add_option("REPORT", request.Report, "What to print, one of the reports below")
      ->required()
      ->check(CLI::Validator(
          [](const std::string& name) {
            return reports::FindReport(name) != nullptr
                       ? std::string()
                       : fmt::format("there is no report '{}'; there are: {}", name, ReportNames());
          },
          ""));
  app.add_option("FILE", request.Files, "C3D files, or folders with --recursive")->required();
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
  if (request.Format != OutputFormat::Text && !HasTable(report)) {
    throw CLI::ValidationError("--format", fmt::format("'{}' has no table; there are tables of: {}",
                                                       request.Report, ReportNames(HasTable)));
  }
  CheckLabels(request, report);
  CheckNormals(request, report);
}

}  // namespace

std::variant<Request, AskedText> ParseCommandLine(const std::vector<std::string>& arguments) {
  CLI::App app(kDescription, "vantrel-report");
  app.footer(Footer());
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", std::string("vantrel-report ") + console::kVersion);
  Request request;
  AddOptions(app, request);
  if (auto asked = TakeArguments(app, arguments, [&] { CheckRequest(request); })) return *asked;
  return request;
}

}  // namespace cli
