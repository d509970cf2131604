// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/MessageBoxes.h"

#include <QString>

#include "app/MessageBox.h"
#include "app/QtText.h"

namespace app {

namespace {

void Show(QWidget* owner, QMessageBox::Icon icon, const QString& text) {
  MessageBox box(icon, QStringLiteral("Vantrel"), text, QMessageBox::Ok, owner);
  box.exec();
}

}  // namespace

void ShowMessage(QWidget* owner, std::string_view text) {
  Show(owner, QMessageBox::NoIcon, ToQString(text));
}

void ShowRuntimeError(QWidget* owner, const modAllPurpose::RuntimeError& error) {
  QString text = ToQString(modAllPurpose::RuntimeErrorTitle(error)) + QStringLiteral("\n\n") +
                 ToQString(error.what());
  if (!error.About().empty()) text += QLatin1Char('\n') + ToQString(error.About());
  Show(owner, QMessageBox::Critical, text);
}

}  // namespace app
