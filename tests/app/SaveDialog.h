// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <filesystem>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

namespace tests {

// Types a path into a dialog that saves a file and presses its button, as a user does.
inline void SaveAs(QDialog& dialog, const std::filesystem::path& path) {
  auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  ASSERT_NE(name, nullptr);
  name->selectAll();
  QTest::keyClicks(name, QString::fromStdString(path.string()));
  QPushButton* save = dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
  ASSERT_TRUE(QTest::qWaitFor([save] { return save->isEnabled(); }));
  QTest::mouseClick(save, Qt::LeftButton);
}

}  // namespace tests
