// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/FormColumn.h"

#include <algorithm>

#include <QFocusEvent>
#include <QScrollBar>

#include "app/FormLayout.h"

namespace app {

namespace {

// A scroll bar that fits into a margin of the form.
class MarginBar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

  QSize sizeHint() const override { return {kFormMargin, QScrollBar::sizeHint().height()}; }
};

bool CameByKey(const QFocusEvent& event) {
  return event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason ||
         event.reason() == Qt::ShortcutFocusReason;
}

}  // namespace

FormColumn::FormColumn(QSize size, QWidget* form) : QScrollArea(form), size_(size) {
  setObjectName(QStringLiteral("column"));
  setFrameStyle(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setVerticalScrollBar(new MarginBar(Qt::Vertical, this));
  setWidget(new QWidget);
  FitInto(size, size.height());
}

void FormColumn::FollowTheKeys() {
  for (QWidget* control : Content()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    control->installEventFilter(this);
  }
}

void FormColumn::FitInto(QSize form, int bottom) {
  resize(std::min(size_.width(), form.width()), form.height());
  Content()->resize(size_.width() - kFormMargin, std::max(bottom, form.height()));
}

bool FormColumn::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusIn && CameByKey(dynamic_cast<const QFocusEvent&>(*event))) {
    ensureWidgetVisible(qobject_cast<QWidget*>(watched), kFormMargin, kFormMargin);
  }
  return QScrollArea::eventFilter(watched, event);
}

}  // namespace app
