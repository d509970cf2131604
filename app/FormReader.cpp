// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormReader.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "app/frmVantrel.h"

namespace app::FormReader {

namespace {

QAccessibleInterface* MakeReader(const QString& /*className*/, QObject* object) {
  auto* form = qobject_cast<frmVantrel*>(object);
  return form == nullptr ? nullptr : new QAccessibleWidget(form, QAccessible::Window);
}

}  // namespace

void Install() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeReader);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace app::FormReader
