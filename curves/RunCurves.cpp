// SPDX-License-Identifier: GPL-3.0-or-later

#include "curves/RunCurves.h"

#include <algorithm>
#include <utility>
#include <variant>

#include "c3d/FileKey.h"
#include "console/Complaint.h"
#include "console/RunCommandLine.h"
#include "curves/CommandLine.h"
#include "curves/ReadTrials.h"
#include "curves/Toolkit.h"
#include "pages/MakePages.h"
#include "pages/PageJson.h"
#include "support/FileSystem.h"
#include "support/MessageOf.h"
#include "visit/NormalFile.h"

namespace curves {

using console::ComplainOf;
using console::Streams;
using modAllPurpose::WholeFile;

namespace {

pages::PageSet PagesOf(const Request& request, const std::vector<pages::TrialValues>& trials,
                       const visit::Normals* normals) {
  pages::PageChoice choice;
  choice.Kinds = request.Kinds;
  choice.Program = ProgramAndVersion();
  choice.Title = request.Title;
  choice.Subject = request.Subject;
  choice.Normals = normals;
  return pages::MakePages(trials, choice);
}

std::vector<WholeFile> FilesOf(const Request& request, const pages::PageSet& set) {
  if (!request.OutputKind) return {{request.Output, pages::JsonOf(set)}};
  StartToolkit();
  plot::DrawingStyle style;
  style.Curves =
      request.Curves.value_or(set.Files.size() > 1 ? plot::Shown::Means : plot::Shown::Strides);
  style.IsMonochrome = request.IsMonochrome;
  return plot::FilesOf(request.Output, set, *request.OutputKind, request.Sheet, style);
}

// Why the file `path` is not replaced even where others may be, empty where it may: what the pages
// are made of, also what could not be read of it, and any recording are not to be had again.
std::string WhyKept(const std::string& path, const Request& request, const pages::PageSet& set) {
  const auto isPath = [&path](const std::string& other) {
    return modAllPurpose::IsSameFile(path, other);
  };
  if (isPath(request.NormalFile) || std::ranges::any_of(request.Files, isPath) ||
      std::ranges::any_of(set.Files, isPath, &pages::PageFile::Name)) {
    return path + " is read for the pages and stays as it is";
  }
  return modVantrel::IsC3dFile(path) ? path + " is a C3D file and stays as it is" : "";
}

// Writes the files; false where one is complained of.
bool Write(const Request& request, const pages::PageSet& set, const Streams& streams) {
  std::string taken;
  const std::string failure = modAllPurpose::MessageOf([&]() -> std::string {
    const std::vector<WholeFile> files = FilesOf(request, set);
    for (const WholeFile& file : files) {
      std::string kept = request.Overwrite ? WhyKept(file.Path, request, set) : "";
      if (!kept.empty()) return kept;
    }
    if (request.Overwrite) {
      WriteFilesTogether(files);
    } else {
      taken = WriteFilesWhereFree(files);
    }
    return {};
  });
  if (!taken.empty()) Complain(streams, taken + " exists already (--overwrite replaces it)");
  if (!failure.empty()) ComplainOf(request.Output, failure, streams);
  return taken.empty() && failure.empty();
}

// Names what the scores of the pages lack; false where it is something.
bool HasAllScores(const pages::PageSet& set, const Streams& streams) {
  bool hasAll = true;
  for (const pages::Page& page : set.Pages) {
    if (page.Kind != pages::PageKind::Scores) continue;
    for (const pages::Panel& panel : page.Panels) {
      for (const std::string& lacking : std::get<pages::BarPanel>(panel).Notes) {
        ComplainOf(std::string(InfoOf(page.Kind).Name), lacking, streams);
        hasAll = false;
      }
    }
  }
  return hasAll;
}

int DrawCurves(const Request& request, const Streams& streams) {
  std::variant<visit::Normals, std::string> normals;
  if (!request.NormalFile.empty()) normals = visit::ReadNormalFile(request.NormalFile);
  if (const auto* fault = std::get_if<std::string>(&normals)) {
    Complain(streams, *fault);
    return console::kSomeFailed;
  }
  int status = console::kAllWell;
  const auto trials = ReadTrials(request, streams, status);
  if (trials.empty()) return status;
  const pages::PageSet set =
      PagesOf(request, trials,
              request.NormalFile.empty() ? nullptr : std::get_if<visit::Normals>(&normals));
  if (set.Pages.empty()) return status;
  if (!HasAllScores(set, streams)) status = console::kSomeFailed;
  return Write(request, set, streams) ? status : console::kSomeFailed;
}

}  // namespace

int RunCurves(const std::vector<std::string>& arguments, const Streams& given) {
  const Streams streams{given.Output, given.Error, kProgram};
  return console::RunCommandLine(
      [&] {
        const auto parsed = ParseCommandLine(arguments);
        if (const auto* asked = std::get_if<console::AskedText>(&parsed)) {
          return console::Print(*asked, streams);
        }
        return DrawCurves(std::get<Request>(parsed), streams);
      },
      streams);
}

}  // namespace curves
