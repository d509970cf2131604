// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/VisitReading.h"
#include "gait/Checkup.h"
#include "pages/MakePages.h"
#include "pages/TrialValues.h"

namespace app {

// A trial of a visit and how far it is read.
struct VisitTrial {
  std::string Path;
  bool IsShown = true;      // its check mark
  bool IsTheForms = false;  // the one that is open in the form
  bool WasAdded = false;    // and so stays when the form goes on to another
  std::string Failure;      // why it could not be read; empty as long as all is well
  std::optional<pages::TrialValues> Values;  // once it is read
  std::vector<std::string> Labels;
  std::string OverTime;  // the label of which Values have the whole trial, or are to get it
  std::vector<modVantrel::Finding> Findings;
  bool IsChecked = false;  // Findings are what the checkup found
  std::set<StrideOfTrial> LeftOut;
};

// The trials that a user looks at together, the form's first. A file is there once, whatever way
// its path is written. What is left out here is left out of everything that is made of it.
class Visit {
 public:
  const std::vector<VisitTrial>& Trials() const { return trials_; }
  // The trial of that path, as Add was given it; null where there is none.
  VisitTrial* Find(const std::string& path);

  // Puts a trial behind the others. False where it is there already; one that could not be read
  // counts as not read yet, and nothing else changes.
  bool Add(const std::string& path);
  // Puts the form's trial first, in place of the one that it had before unless that was added too.
  // Empty for none. False where nothing changes. It is to be read anew where it could not be read.
  bool Follow(const std::string& path);
  void Remove(std::size_t trial);

  // Takes what was read of the trial of that path, with `label` over time, or of that label alone.
  // A trial that is no more there, or is asked for another label by now, takes nothing.
  void Take(const std::string& path, const std::string& label, ReadTrial read);
  void Take(const std::string& path, const std::string& label, ReadLabel read);
  // The trials on the pages that are still to read this label over time; from now on they count as
  // asked for it.
  std::vector<std::string> AskFor(const std::string& label);
  // Says `reason` of the trials of these paths, and of all that wait for a label asks anew.
  void GiveUp(const std::set<std::string>& paths, const std::string& reason);
  // As if none of the trials, or not that one, had been read yet.
  void Forget();
  void Forget(const std::string& path);

  void SetShown(std::size_t trial, bool isShown) { trials_.at(trial).IsShown = isShown; }
  void SetLeftOut(std::size_t trial, const StrideOfTrial& stride, bool isLeftOut);
  void ShowAllStrides();

  // The trials on the pages, in their order: those that are read and have their check mark.
  std::vector<std::size_t> OnPages() const;

  // The pages of a choice, of what is on pages; `choice.LeftOut` is filled here.
  pages::PageSet Pages(pages::PageChoice choice) const;

  // The trial that a stride of these pages is of.
  std::size_t TrialOf(const pages::StrideId& stride) const { return OnPages().at(stride.File); }

  // What tables are made of: the trials on the pages.
  std::vector<TrialToRead> ToTabulate() const;

  // The labels of the trials on the pages, each once.
  std::vector<std::string> Labels() const;

 private:
  std::vector<VisitTrial>::iterator SameFile(const std::string& path);

  std::vector<VisitTrial> trials_;
};

}  // namespace app
