// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormReader.h"

#include <QAccessible>
#include <QAccessibleWidget>

#include "app/frmVantrel.h"

namespace app::FormReader {

namespace {

// The form is a window where it stands alone, else the client area of one.
class Reader : public QAccessibleWidget {
 public:
  explicit Reader(frmVantrel* form) : QAccessibleWidget(form) {}

  QAccessible::Role role() const override {
    return widget()->isWindow() ? QAccessible::Window : QAccessible::Client;
  }
};

QAccessibleInterface* MakeFormReader(const QString& /*className*/, QObject* object) {
  auto* form = qobject_cast<frmVantrel*>(object);
  return form == nullptr ? nullptr : new Reader(form);
}

}  // namespace

void Install() {
  static const bool installed = [] {
    QAccessible::installFactory(MakeFormReader);
    return true;
  }();
  static_cast<void>(installed);
}

}  // namespace app::FormReader
