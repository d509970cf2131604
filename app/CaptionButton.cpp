// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/CaptionButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "app/DarkOutline.h"

namespace app {

CaptionButton::CaptionButton(const QString& caption, QWidget* parent)
    : QPushButton(caption, parent) {
  setAutoDefault(true);
}

QRect CaptionButton::CaptionArea() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  constexpr int kEdge = 3;  // a caption that would touch the frame is broken before it does
  return style()
      ->subElementRect(QStyle::SE_PushButtonContents, &option, this)
      .adjusted(kEdge, 0, -kEdge, 0);
}

void CaptionButton::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

void CaptionButton::keyPressEvent(QKeyEvent* event) {
  if (event->isAutoRepeat() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
    return;
  }
  QPushButton::keyPressEvent(event);
}

void CaptionButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);

  QRect area = CaptionArea();
  if (isDown()) {
    area.translate(style()->pixelMetric(QStyle::PM_ButtonShiftHorizontal, &option, this),
                   style()->pixelMetric(QStyle::PM_ButtonShiftVertical, &option, this));
  }
  painter.drawItemText(area, kButtonCaptionFlags, palette(), isEnabled(), text(),
                       QPalette::ButtonText);
}

QRect CaptionCheckBox::CaptionArea() const {
  QStyleOptionButton option;
  initStyleOption(&option);
  return style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this);
}

void CaptionCheckBox::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  option.state &= ~QStyle::State_HasFocus;  // drawn below, around the caption
  painter.drawControl(QStyle::CE_CheckBox, option);
  OutlineInTheDark(painter, style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, this),
                   palette());
  painter.drawItemText(CaptionArea(), kCheckBoxCaptionFlags, palette(), isEnabled(), text(),
                       QPalette::WindowText);
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.rect = CaptionArea().adjusted(-2, 0, 0, 0);
    focus.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
  }
}

bool CaptionCheckBox::hitButton(const QPoint& position) const { return rect().contains(position); }

}  // namespace app
