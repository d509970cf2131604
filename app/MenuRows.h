// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <span>
#include <variant>

#include <QKeyCombination>

#include "app/FormRows.h"

class QAction;
class QObject;
class QString;

namespace app {

class MainWindow;

// The menus from left to right.
enum class MenuName { File, Edit, Reports, Curves, Trial, Help };
inline constexpr std::array kMenus = {MenuName::File,   MenuName::Edit,  MenuName::Reports,
                                      MenuName::Curves, MenuName::Trial, MenuName::Help};

// What stands in the menu bar, "&" before the letter that opens the menu.
QString CaptionOf(MenuName menu);

// Whether an entry waits its turn like a press of a button (one command at a time, run-time errors
// end the program), or does what it does at once.
enum class MenuTurn { Command, AtOnce };

// What must be there for an entry to be enabled.
enum class MenuNeeds { Nothing, OpenFile, NextTrial, PreviousTrial, Table, RecentFiles, Normals };

using WindowHandler = void (MainWindow::*)();

// An entry of a menu, which is an action: its object name, its caption ("&" before the letter that
// chooses it), its keys, and what it runs. The form's entries are actions of the form, so that
// their keys work it without any menu.
struct MenuRow {
  MenuName Menu = MenuName::File;
  const char* Name = nullptr;
  const char16_t* Caption = nullptr;
  std::array<QKeyCombination, 2> Keys = {};  // Qt::Key_unknown: none
  std::variant<std::monostate, FormHandler, WindowHandler> Run =
      {};  // a menu of its own runs nothing
  MenuTurn Turn = MenuTurn::Command;
  MenuNeeds Needs = MenuNeeds::Nothing;
  bool StartsGroup = false;  // set off from the entry above it
};

// Every entry in the order of the menus, those of the form's buttons aside: the menu of reports
// shows these first, each under the button's caption (IsReportButton).
std::span<const MenuRow> MenuRows();

// Whether the menu of reports has an entry for that button of the form, and that entry, which has
// the button's object name.
bool IsReportButton(const ButtonRow& button);
MenuRow RowOf(const ButtonRow& button);

// The action of a row, without what it runs.
QAction* NewAction(const MenuRow& row, QObject* parent);

}  // namespace app
