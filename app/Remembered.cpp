// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/Remembered.h"

#include <algorithm>

#include <QStandardPaths>

#include "support/FileSystem.h"

namespace app {

namespace {

constexpr std::size_t kMostRecent = 10;

const auto kCorner = QStringLiteral("window/corner");
const auto kClient = QStringLiteral("window/size");
const auto kMaximized = QStringLiteral("window/maximized");
const auto kZoom = QStringLiteral("pane/zoom");
const auto kDesktopCopy = QStringLiteral("pane/desktopCopy");
const auto kFolder = QStringLiteral("files/folder");
const auto kRecent = QStringLiteral("files/recent");
const auto kFurtherLabels = QStringLiteral("trial/furtherLabels");
const auto kAnatomicalAxes = QStringLiteral("trial/anatomicalAxes");
const auto kNormals = QStringLiteral("curves/normals");

QString Encoded(const std::string& path) {
  return QString::fromLatin1(QByteArray::fromStdString(path).toPercentEncoding("/"));
}

std::string Decoded(const QString& path) {
  return QByteArray::fromPercentEncoding(path.toLatin1()).toStdString();
}

}  // namespace

QString SettingsFile() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
         QStringLiteral("/vantrel/vantrel.ini");
}

Remembered::Remembered() : settings_(SettingsFile(), QSettings::IniFormat) {}

std::string Remembered::Path(const QString& key) const {
  return Decoded(settings_.value(key).toString());
}

void Remembered::SetPath(const QString& key, const std::string& path) {
  settings_.setValue(key, Encoded(path));
}

std::optional<KnownPlace> Remembered::Place() const {
  if (!settings_.contains(kCorner)) return {};
  const KnownPlace place{settings_.value(kCorner).toPoint(), settings_.value(kClient).toSize(),
                         settings_.value(kMaximized).toBool()};
  if (place.Client.isEmpty()) return {};
  return place;
}

void Remembered::SetPlace(const KnownPlace& place) {
  settings_.setValue(kCorner, place.Corner);
  settings_.setValue(kClient, place.Client);
  settings_.setValue(kMaximized, place.Maximized);
}

int Remembered::Zoom() const {
  // What the editor lets its letters shrink and grow by.
  constexpr int kLeast = -10;
  constexpr int kMost = 20;
  return std::clamp(settings_.value(kZoom).toInt(), kLeast, kMost);
}

void Remembered::SetZoom(int steps) { settings_.setValue(kZoom, steps); }

bool Remembered::DesktopCopy() const { return settings_.value(kDesktopCopy).toBool(); }

void Remembered::SetDesktopCopy(bool ticked) { settings_.setValue(kDesktopCopy, ticked); }

std::string Remembered::LastFolder() const { return Path(kFolder); }

std::vector<std::string> Remembered::RecentFiles() const {
  std::vector<std::string> files;
  for (const QString& path : settings_.value(kRecent).toStringList()) {
    if (files.size() < kMostRecent) files.push_back(Decoded(path));
  }
  return files;
}

void Remembered::AddRecentFile(const std::string& path) {
  QStringList files = settings_.value(kRecent).toStringList();
  files.removeIf(
      [&](const QString& known) { return modAllPurpose::IsSameSpelling(Decoded(known), path); });
  files.prepend(Encoded(path));
  settings_.setValue(kRecent, files.mid(0, kMostRecent));
  SetPath(kFolder, std::string(modAllPurpose::FolderPart(path)));
}

void Remembered::ClearRecentFiles() { settings_.remove(kRecent); }

bool Remembered::FurtherLabels() const { return settings_.value(kFurtherLabels).toBool(); }

void Remembered::SetFurtherLabels(bool known) { settings_.setValue(kFurtherLabels, known); }

bool Remembered::AnatomicalAxes() const { return settings_.value(kAnatomicalAxes).toBool(); }

void Remembered::SetAnatomicalAxes(bool taken) { settings_.setValue(kAnatomicalAxes, taken); }

std::string Remembered::Normals() const { return Path(kNormals); }

void Remembered::SetNormals(const std::string& path) {
  if (path.empty()) {
    settings_.remove(kNormals);
  } else {
    SetPath(kNormals, path);
  }
}

}  // namespace app
