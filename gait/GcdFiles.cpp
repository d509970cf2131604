// SPDX-License-Identifier: GPL-3.0-or-later

#include "gait/GcdFiles.h"

#include <filesystem>
#include <string_view>

#include <fmt/format.h>

#include "c3d/FileKey.h"
#include "gait/EventNames.h"
#include "gait/GcdText.h"
#include "support/FileSystem.h"
#include "support/RuntimeError.h"
#include "support/Text.h"

namespace modVantrel {

using modAllPurpose::ErrorNumber;
using modAllPurpose::RuntimeError;
using modAllPurpose::WholeFile;

namespace {

// `folder` with a separator behind it, which a drive alone does not need: "C:" is the current
// folder of the drive. Windows takes two; the folder goes on with the one that it is written with.
std::string WithSeparator(const std::string& folder) {
  constexpr char kSeparator = std::filesystem::path::preferred_separator;
  if (modAllPurpose::OwnName(folder).empty()) return folder;
  return folder + (folder.find(kSeparator) == std::string::npos ? '/' : kSeparator);
}

}  // namespace

std::string GcdFileName(const std::string& trial, const StrideRecord& stride,
                        const std::string& outputFolder) {
  const std::string_view ownName = modAllPurpose::OwnName(trial);
  const std::string_view shortened = modAllPurpose::WithoutExtension(ownName);
  const std::string folder = outputFolder.empty() ? std::string(modAllPurpose::FolderPart(trial))
                                                  : WithSeparator(outputFolder);
  return fmt::format("{}{}-{}{}.gcd", folder, shortened.empty() ? ownName : shortened,
                     SideName(stride.Side).front(), stride.Number);
}

GcdFiles::GcdFiles(const FileState& state, const GcdOptions& options)
    : state_(state),
      outputFolder_(options.OutputFolder),
      subject_(FindSubject(state, options.Subject)),
      axes_(options.Axes),
      calcs_(state) {}

std::string GcdFiles::Name(std::int32_t strideIndex) const {
  return GcdFileName(state_.OpenC3dFileSpec, state_.GaitEvents.ValidStrides[strideIndex],
                     outputFolder_);
}

std::string GcdFiles::Text(std::int32_t strideIndex) {
  return GcdText(calcs_, strideIndex, subject_, {.Axes = axes_});
}

std::string GcdFiles::AxesRemark() {
  if (axes_ == GcdAxes::Anatomical) return {};
  for (std::int32_t i = 1; i <= Count(); ++i) {
    switch (calcs_.CalcSingleValueMeasures(i).ProgressionAxis) {
      case WalkAxis::None:
        return "there are no toe markers to tell the direction of the walk, so sagittal curves are "
               "0 "
               "and coronal ones component 1";
      case WalkAxis::Y:
        return "the walk goes along Y, so sagittal curves are component 2 and coronal ones "
               "component 1";
      case WalkAxis::X:
        break;
    }
  }
  return {};
}

void GcdFiles::RefuseTrial(const std::string& name) const {
  bool isTrial = modAllPurpose::IsSameFile(name, state_.OpenC3dFileSpec);
  try {
    isTrial = isTrial || IsC3dFile(name);
  } catch (const RuntimeError& error) {
    throw RuntimeError(error.Number(), name);  // it may be one
  }
  if (isTrial) throw RuntimeError(ErrorNumber::PathFileAccessError, name + " is a C3D file");
}

bool GcdFiles::WriteWhereFree(std::int32_t strideIndex) {
  return modAllPurpose::WriteFileWhereFree(Name(strideIndex), Text(strideIndex));
}

void GcdFiles::Replace(std::int32_t strideIndex) {
  const std::string name = Name(strideIndex);
  const std::string text = Text(strideIndex);
  RefuseTrial(name);
  modAllPurpose::WriteFileInOneStep(name, text);
}

std::vector<WholeFile> GcdFiles::All() {
  std::vector<WholeFile> files;
  for (std::int32_t i = 1; i <= Count(); ++i) files.push_back({Name(i), Text(i)});
  return files;
}

std::string GcdFiles::WriteAllWhereFree() { return modAllPurpose::WriteFilesWhereFree(All()); }

void GcdFiles::RefuseTrials(std::span<const WholeFile> files) const {
  for (const WholeFile& file : files) RefuseTrial(file.Path);
}

void GcdFiles::ReplaceAll(const std::function<void(const std::string& name)>& written) {
  const std::vector<WholeFile> files = All();
  RefuseTrials(files);
  std::vector<std::string> replaced;
  const auto tell = [&] {
    for (const std::string& name : replaced) written(name);
  };
  try {
    modAllPurpose::WriteFilesTogether(
        files, {.LastLook = [&] { RefuseTrials(files); },
                .Replaced = [&](const WholeFile& file) { replaced.push_back(file.Path); }});
  } catch (...) {
    tell();
    throw;
  }
  tell();
}

}  // namespace modVantrel
