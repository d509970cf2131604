// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "c3d/FileState.h"
#include "gait/GcdCalcs.h"
#include "gait/GcdText.h"
#include "gait/SubjectRecord.h"
#include "support/WholeFiles.h"

namespace modVantrel {

struct GcdOptions {
  // The folder for the files; empty for that of the trial.
  std::string OutputFolder;
  SubjectOptions Subject;
  GcdAxes Axes = GcdAxes::Walk;
};

// The trial's own name without its last four characters, or all of a name that has no more, then
// "-", the side's letter, the stride's number and ".gcd"; in the trial's folder or, where that is
// not empty, in `outputFolder`.
std::string GcdFileName(const std::string& trial, const StrideRecord& stride,
                        const std::string& outputFolder);

// The GCD files of one trial, one for each valid stride, which are counted from 1.
//
// Each is written whole, as WholeFiles does, and its text is made before anything of its name is
// touched. No file is ever replaced that is a trial: the open one, or any that begins like a C3D
// file, whatever way its name leads there. Errors as clsGcdCalcs and WholeFiles.
class GcdFiles {
 public:
  // Takes the strides and the subject of the open file, which must outlive this object. Errors as
  // FindSubject.
  GcdFiles(const FileState& state, const GcdOptions& options);

  // What a reader of the files must know of their curves: that the axes of the walk exchange them
  // or leave them empty, in a sentence; empty where they do not. Errors as clsGcdCalcs.
  std::string AxesRemark();

  std::int32_t Count() const { return state_.GaitEvents.ValidStrideCount; }
  std::string Name(std::int32_t strideIndex) const;

  // Writes the file of one stride; false, with nothing changed, where its name is taken.
  bool WriteWhereFree(std::int32_t strideIndex);

  // Writes the file of one stride, in place of an older one where there is one.
  void Replace(std::int32_t strideIndex);

  // Writes the files of all strides, or none: empty, or a name that was taken.
  std::string WriteAllWhereFree();

  // Writes the files of all strides in place of older ones and then tells of each that is written,
  // in the order of the strides, also where an error ended it. Nothing is changed before all files
  // are complete on disk and no name is that of a trial; an interruption leaves all or none of them
  // new.
  void ReplaceAll(const std::function<void(const std::string& name)>& written);

 private:
  std::string Text(std::int32_t strideIndex);
  std::vector<modAllPurpose::WholeFile> All();
  void RefuseTrial(const std::string& name) const;
  void RefuseTrials(std::span<const modAllPurpose::WholeFile> files) const;

  const FileState& state_;
  std::string outputFolder_;
  SubjectRecord subject_;
  GcdAxes axes_;
  clsGcdCalcs calcs_;
};

}  // namespace modVantrel
