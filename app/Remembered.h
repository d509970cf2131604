// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QSettings>

#include "app/WindowPlace.h"

namespace app {

// The file of the program's settings: vantrel/vantrel.ini in the user's config folder.
QString SettingsFile();

// What the program remembers from one run to the next, in an ini file of the user's config folder.
// Paths are kept byte for byte, since they need not be UTF-8. A value that is missing or makes no
// sense counts as never set; a file that cannot be written forgets.
class Remembered {
 public:
  // The user's file: vantrel/vantrel.ini.
  Remembered();

  std::optional<KnownPlace> Place() const;
  void SetPlace(const KnownPlace& place);

  // Steps of the pane's letters beyond their usual size.
  int Zoom() const;
  void SetZoom(int steps);

  bool DesktopCopy() const;
  void SetDesktopCopy(bool ticked);

  // The folder of the trial that was opened last; empty for none.
  std::string LastFolder() const;

  // The trials opened last, the last one first, ten at most and each of them once, however
  // it was written (see IsSameSpelling). Opening one sets the last folder too.
  std::vector<std::string> RecentFiles() const;
  void AddRecentFile(const std::string& path);
  void ClearRecentFiles();

  // The check marks of the menu of the trial; off at first.
  bool FurtherLabels() const;
  void SetFurtherLabels(bool known);
  bool AnatomicalAxes() const;
  void SetAnatomicalAxes(bool taken);

  // The file of normal values that curves are compared with; empty for none.
  std::string Normals() const;
  void SetNormals(const std::string& path);

 private:
  std::string Path(const QString& key) const;
  void SetPath(const QString& key, const std::string& path);

  QSettings settings_;
};

}  // namespace app
