// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

#include <QString>

class QWidget;

// The system's dialog for choosing a file to open.
namespace modApiCommonDialog {

// Flags of the dialog.
inline constexpr unsigned kHideReadOnly = 4;
inline constexpr unsigned kPathMustExist = 2048;
inline constexpr unsigned kFileMustExist = 4096;

// What was chosen: the whole path, its folder with the slash at its end, and the name alone. After
// a cancelled dialog the path is "none" and the other two are empty.
struct DialogResult {
  std::string DialogFileSpec = "none";
  std::string DialogFolder;
  std::string DialogFileName;
  bool DialogOk = false;
};

// Shows the dialog over `owner` and waits. `filter` is a row of pairs, a text to show and its
// pattern, each ended by NUL; patterns are matched without regard to case. An empty
// `initialFolder` starts in the folder visited last, at first in the current one. One existing file
// can be chosen, which is what the flags ask for; there is no read-only box to hide. A path may be
// as long as the system allows. `cancelHint` is the tooltip of the dialog's Cancel button, where
// the dialog is not the desktop's own.
DialogResult ShowOpenFileDialog(QWidget* owner, std::string_view filter,
                                const std::string& initialFolder, const QString& title,
                                unsigned flags, const QString& cancelHint = {});

// The result for a chosen path.
DialogResult ResultForChosenFile(std::string_view path);

}  // namespace modApiCommonDialog
