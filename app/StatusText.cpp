// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/StatusText.h"

#include <cmath>

#include <QCoreApplication>

#include "app/QtText.h"
#include "support/FileSystem.h"

namespace app {

namespace {

QString Said(const char* text) { return QCoreApplication::translate("app::StatusText", text); }

QString Counted(int count, const char* one, const char* several) {
  return QStringLiteral("%1 %2").arg(count).arg(Said(count == 1 ? one : several));
}

// Frames a second, at most two digits behind the point; empty where they are not known.
QString RateOf(const modVantrel::FileState& state) {
  if (!(state.TimeBetweenFrames > 0)) return {};
  constexpr double kHundredths = 100;
  const double rate = 1.0 / double{state.TimeBetweenFrames};
  return QStringLiteral("%1 Hz").arg(std::round(rate * kHundredths) / kHundredths);
}

int StridesOf(const modVantrel::FileState& state, modVantrel::GaitSide side) {
  int count = 0;
  for (const auto& stride : state.GaitEvents.ValidStrides) count += stride.Side == side ? 1 : 0;
  return count;
}

// The findings, from the longest form to the shortest. Notes are said where there is nothing else.
QStringList FindingsOf(const CheckupCounts& counts) {
  if (counts.Errors == 0 && counts.Warnings == 0) {
    return {counts.Notes == 0 ? Said("no findings") : Counted(counts.Notes, "note", "notes")};
  }
  QStringList full;
  QStringList brief;
  if (counts.Errors > 0) {
    full << Counted(counts.Errors, "error", "errors");
    brief << Counted(counts.Errors, "err.", "err.");
  }
  if (counts.Warnings > 0) {
    full << Counted(counts.Warnings, "warning", "warnings");
    brief << Counted(counts.Warnings, "warn.", "warn.");
  }
  return {full.join(QStringLiteral(", ")), brief.join(QStringLiteral(", "))};
}

QStringList FindingsAt(CheckupStage stage, const CheckupCounts& counts) {
  switch (stage) {
    case CheckupStage::Running:
      return {Said("checking\u2026")};
    case CheckupStage::Failed:
      return {Said("not checked")};
    case CheckupStage::Done:
      break;
  }
  return FindingsOf(counts);
}

QString CheckupSentence(CheckupStage stage, const CheckupCounts& counts) {
  switch (stage) {
    case CheckupStage::Running:
      return Said("The checkup is running.");
    case CheckupStage::Failed:
      return Said("The checkup could not be made.");
    case CheckupStage::Done:
      break;
  }
  return Said("The checkup found %1, %2 and %3; a click shows it.")
      .arg(Counted(counts.Errors, "error", "errors"),
           Counted(counts.Warnings, "warning", "warnings"), Counted(counts.Notes, "note", "notes"));
}

}  // namespace

StatusText StatusWithoutFile() {
  const QString text = Said("No file open");
  return {text, {}, {}, text};
}

StatusText StatusOf(const modVantrel::FileState& state, CheckupStage stage,
                    const CheckupCounts& counts) {
  const QString name = ToQString(modAllPurpose::OwnName(state.OpenC3dFileSpec));
  const QString frames = Counted(state.PointFrameCount, "frame", "frames");
  const QString fewer = Counted(state.PointFrameCount, "fr.", "fr.");
  const QString rate = RateOf(state);
  const auto withRate = [&rate](const QString& count, const QString& between) {
    return rate.isEmpty() ? count : count + between + rate;
  };
  const int left = StridesOf(state, modVantrel::GaitSide::Left);
  const int right = StridesOf(state, modVantrel::GaitSide::Right);

  const QString comma = QStringLiteral(", ");
  StatusText text{name, {withRate(frames, comma), withRate(fewer, comma)}, {}, {}};
  for (const QString& findings : FindingsAt(stage, counts)) {
    text.Counts << QStringLiteral("L %1, R %2 \u00b7 %3").arg(left).arg(right).arg(findings);
  }
  text.Sentence = QStringLiteral("%1: %2; %3. %4")
                      .arg(name, withRate(frames, Said(" at ")),
                           Said("%1 left and %2 right strides").arg(left).arg(right),
                           CheckupSentence(stage, counts));
  return text;
}

}  // namespace app
