// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/CommandLine.h"

#include <algorithm>
#include <iostream>
#include <sstream>

#include <CLI/CLI.hpp>

#include "Version.h"
#include "cli/ReportTable.h"
#include "cli/StandardOutput.h"
#include "support/RuntimeError.h"

namespace cli {

namespace {

constexpr const char* kDescription =
    "Prints reports of C3D motion-capture files on standard output, for scripts and batches.";

constexpr const char* kFooter =
    "\nExit status: 0 all well, 1 a file failed or its report was refused (the others are still "
    "printed), 2 wrong usage.";

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
  app.add_option("REPORT", request.Report, "What to print: " + ReportNames(", "))
      ->required()
      ->check(CLI::Validator(
          [](const std::string& name) {
            return FindReport(name) != nullptr
                       ? std::string()
                       : "there is no report '" + name + "'; there are: " + ReportNames(", ");
          },
          ""));
  app.add_option("FILE", request.Files, "C3D files")->required();
  TakeShieldsAway(app);
}

void CheckRequest(CLI::App& app, Request& request) {
  request.HasGroup = app.count("--group") > 0;
  request.HasParam = app.count("--param") > 0;
  if (request.HasParam && !request.HasGroup) throw CLI::RequiresError("--param", "--group");
  if (FindReport(request.Report)->NeedsLabel && app.count("--label") == 0) {
    throw CLI::RequiresError("the report '" + request.Report + "'", "--label");
  }
}

// Prints what was asked for in place of a report, and returns the exit status.
int PrintText(std::string text) {
  if (!text.ends_with('\n')) text += '\n';
  StandardOutput output({});
  try {
    output.Piece(text);
    output.Flush();
  } catch (const OutputClosed&) {
    // Whoever asked has seen enough.
  } catch (const modAllPurpose::RuntimeError& error) {
    std::cerr << "vantrel-report: " << RuntimeErrorLine(error) << '\n';
    return kSomeFailed;
  }
  return kAllWell;
}

}  // namespace

std::variant<Request, int> ParseCommandLine(std::vector<std::string> arguments) {
  CLI::App app(kDescription, "vantrel-report");
  app.footer(kFooter);
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", std::string("vantrel-report ") + kVersion);
  Request request;
  AddOptions(app, request);
  try {
    arguments = SplitEmptyValues(arguments);
    ShieldBrackets(arguments);
    std::ranges::reverse(arguments);  // the order in which the parser takes them
    app.parse(std::move(arguments));
    CheckRequest(app, request);
    return request;
  } catch (const CLI::Success& done) {
    std::ostringstream text;
    app.exit(done, text, std::cerr);
    return PrintText(text.str());
  } catch (const CLI::ParseError& error) {
    std::cerr << "vantrel-report: " << error.what()
              << "\nTry 'vantrel-report --help' for more information.\n";
    return kUsageError;
  }
}

}  // namespace cli
