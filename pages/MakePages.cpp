// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages/MakePages.h"

#include "pages/CurvePanels.h"
#include "pages/LabelPage.h"
#include "pages/MeasurePage.h"
#include "pages/ScorePage.h"
#include "pages/ShownTrials.h"

namespace pages {

namespace {

void AddLabelPages(const ShownTrials& shown, std::vector<Page>& pages) {
  for (std::size_t file = 0; file < shown.Trials().size(); ++file) {
    for (const LabelOverTime& label : shown.Trials()[file].OverTime) {
      pages.push_back(LabelPage(shown, file, label));
    }
  }
}

void AddPages(const ShownTrials& shown, PageKind kind, std::vector<Page>& pages) {
  switch (kind) {
    case PageKind::Measures:
      pages.push_back(MeasurePage(shown));
      break;
    case PageKind::Scores:
      pages.push_back(ScorePage(shown));
      break;
    case PageKind::Label:
      AddLabelPages(shown, pages);
      break;
    default:
      pages.push_back(CurvePage(shown, kind));
  }
}

}  // namespace

PageSet MakePages(std::span<const TrialValues> trials, const PageChoice& choice) {
  const ShownTrials shown(trials, choice);
  PageSet set;
  set.Program = choice.Program;
  set.Title = choice.Title;
  set.Subject = choice.Subject;
  for (std::size_t file = 0; file < trials.size(); ++file) {
    const TrialValues& trial = trials[file];
    set.Files.push_back({trial.File, trial.Date, trial.Rate});
    for (const TrialStride* stride : shown.StridesOf(file)) {
      if (stride->Side == modVantrel::GaitSide::Left) ++set.LeftStrides;
      if (stride->Side == modVantrel::GaitSide::Right) ++set.RightStrides;
    }
  }
  for (const PageKind kind : choice.Kinds) AddPages(shown, kind, set.Pages);
  return set;
}

}  // namespace pages
