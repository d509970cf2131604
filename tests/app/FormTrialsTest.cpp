// SPDX-License-Identifier: GPL-3.0-or-later

// The window against the tool, over recordings: VANTREL_TRIALS names a folder of them. The sample
// walk is always one. VANTREL_SHARE names a folder, of another machine maybe, for the trials whose
// GCD files are written.

#include <map>
#include <optional>
#include <string>
#include <vector>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include "c3d/OpenC3dFile.h"
#include "gait/EventExtraction.h"
#include "tests/app/FormFixture.h"

namespace {

using tests::ButtonCommand;
using tests::FormTest;

// What the tool prints; nothing where it refuses or fails.
std::optional<std::string> Printed(const QStringList& arguments) {
  QProcess tool;
  tests::RunTool(tool, arguments);
  if (tool.exitCode() != 0) return std::nullopt;
  return tool.readAllStandardOutput().toStdString();
}

QStringList Recordings() {
  QStringList files;
  QDirIterator found(qEnvironmentVariable("VANTREL_TRIALS"), {QStringLiteral("*.c3d")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (!qEnvironmentVariableIsEmpty("VANTREL_TRIALS") && found.hasNext()) {
    files.append(QDir::toNativeSeparators(found.next()));
  }
  return files;
}

class FormTrials : public FormTest {
 protected:
  // Whether the program takes the file; else there is nothing to compare.
  static bool Opens(const std::string& file) {
    modVantrel::FileState state;
    bool opens = false;
    modAllPurpose::IgnoringErrors([&] {
      opens =
          OpenC3dFile(state, file, modVantrel::FindGaitEvents) == modVantrel::OpenResult::Success;
    });
    return opens;
  }

  // The report commands for the labels that the form then holds.
  std::vector<ButtonCommand> Commands() {
    const QString point = FirstOf(state_.PointLabels);
    const QString analog = FirstOf(state_.AnalogLabels);
    Type("txtPointLabel", point);
    Type("txtAnalogLabel", analog);
    const auto labelled = [](const char* report, const QString& label) {
      return QStringList{QString::fromLatin1(report), QStringLiteral("--label"), label};
    };
    return {{"cmdShowHeaderInfo", {QStringLiteral("header")}},
            {"cmdShowParameterHeader", {QStringLiteral("parameter-header")}},
            {"cmdShowAllGroups", {QStringLiteral("groups")}},
            {"cmdShowAllGroupsAndAllParams", {QStringLiteral("parameters")}},
            {"cmdShowPointLabels", {QStringLiteral("labels")}},
            {"cmdShowPointData", labelled("point", point)},
            {"cmdShowPointDataWithEvents",
             labelled("point", point) + QStringList(QStringLiteral("--events"))},
            {"cmdShowAnalogData", labelled("analog", analog)},
            {"cmdShowAnalogDataWithEvents",
             labelled("analog", analog) + QStringList(QStringLiteral("--events"))},
            {"cmdShowStrikeOffEvents", {QStringLiteral("events")}},
            {"cmdShowSingleValueStrikeOffMeasures", {QStringLiteral("measures")}},
            {"cmdShowNormalized", labelled("normalized", point)}};
  }

  static QString FirstOf(const modAllPurpose::OneBasedTable<std::string>& labels) {
    return labels.Count() == 0 ? QString() : QString::fromStdString(labels[1]);
  }

  void CompareOpened(const QString& file) {
    for (const ButtonCommand& command : Commands()) {
      const auto printed = Printed(command.ToolArguments + QStringList(file));
      if (!printed) continue;
      Click(command.Button);
      ASSERT_TRUE(PaneText() == *printed) << file.toStdString() << ' ' << command.Button;
      ++compared_;
    }
  }

  // A copy of the recording in a folder of its own, on the share where there is one.
  QString OnTheShare(const QString& file) {
    const QString share =
        qEnvironmentVariable("VANTREL_SHARE", QString::fromStdString(folder_.Path().string()));
    const QString folder = QStringLiteral("%1/G\u00e4nge %2").arg(share).arg(++copies_);
    QDir(folder).removeRecursively();
    EXPECT_TRUE(QDir().mkpath(folder));
    const QString copy = folder + u'/' + QFileInfo(file).fileName();
    EXPECT_TRUE(QFile::copy(file, copy));
    return QDir::toNativeSeparators(copy);
  }

  static std::map<QString, QByteArray> GcdFilesIn(const QString& folder) {
    std::map<QString, QByteArray> contents;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.gcd")}, QDir::Files)) {
      QFile file(folder + u'/' + name);
      EXPECT_TRUE(file.open(QIODevice::ReadOnly));
      contents[name] = file.readAll();
    }
    return contents;
  }

  void CompareGcdFiles(const QString& file) {
    const QString copy = OnTheShare(file);
    const QString tools = QFileInfo(copy).path() + QStringLiteral("/by the tool");
    ASSERT_TRUE(QDir().mkpath(tools));
    if (!Printed({QStringLiteral("gcd"), QStringLiteral("--output-dir"), tools, copy})) return;
    Drop(copy.toStdString());
    Click("cmdWriteGcdFiles");
    ASSERT_TRUE(PaneText().ends_with("Done.\n")) << file.toStdString() << '\n' << PaneText();
    EXPECT_TRUE(GcdFilesIn(QFileInfo(copy).path()) == GcdFilesIn(tools)) << file.toStdString();
    compared_ += static_cast<int>(GcdFilesIn(tools).size());
  }

  int compared_ = 0;
  int copies_ = 0;
};

TEST_F(FormTrials, PutIntoThePaneWhatTheToolPrints) {
  const std::string walk = WriteSampleWalk();
  Start(walk);
  CompareOpened(QString::fromStdString(walk));
  EXPECT_GE(compared_, 12);
  for (const QString& file : Recordings()) {
    if (!Opens(file.toStdString())) continue;
    Drop(file.toStdString());
    CompareOpened(file);
  }
  RecordProperty("compared", compared_);
}

TEST_F(FormTrials, WriteTheGcdFilesThatTheToolWrites) {
  const std::string walk = WriteSampleWalk();
  Start();
  CompareGcdFiles(QString::fromStdString(walk));
  EXPECT_EQ(compared_, 6);
  for (const QString& file : Recordings()) {
    if (Opens(file.toStdString())) CompareGcdFiles(file);
  }
  RecordProperty("compared", compared_);
}

}  // namespace
