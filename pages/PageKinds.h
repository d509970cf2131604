// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string_view>

namespace pages {

enum class PageKind { Kinematics, Kinetics, Measures, Variability, Scores, Label };

// A page as its users know it.
struct PageInfo {
  PageKind Kind;
  std::string_view Name;   // on command lines and in page values
  std::string_view Title;  // on the page itself, in menus and on tabs
};

// Every page, in the order in which help, menus and the curves window list them.
inline constexpr std::array kPages = {
    PageInfo{PageKind::Kinematics, "kinematics", "Kinematics"},
    PageInfo{PageKind::Kinetics, "kinetics", "Kinetics"},
    PageInfo{PageKind::Measures, "measures", "Measures"},
    PageInfo{PageKind::Variability, "variability", "Variability"},
    PageInfo{PageKind::Scores, "scores", "Scores"},
    PageInfo{PageKind::Label, "label", "Label Over Time"},
};

// The page of that name; null where there is none.
const PageInfo* FindPage(std::string_view name);
const PageInfo& InfoOf(PageKind kind);

}  // namespace pages
