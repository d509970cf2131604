// SPDX-License-Identifier: GPL-3.0-or-later

// How mouse and keys work the page.

#include <algorithm>
#include <cmath>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>

#include "app/PageView.h"

namespace app {

namespace {

constexpr double kReach = 7;    // pixels around the pointer
constexpr double kStep = 1.25;  // of a zoom

// The strides whose curves stand on a page, in the order of its first panel that has any.
std::vector<pages::StrideId> StridesOn(const pages::Page& page) {
  std::vector<pages::StrideId> strides;
  for (const pages::Panel& panel : page.Panels) {
    const auto* curves = std::get_if<pages::CurvePanel>(&panel);
    if (curves == nullptr) continue;
    for (const pages::Curve& curve : curves->Curves) {
      if (std::ranges::find(strides, curve.Id) == strides.end()) strides.push_back(curve.Id);
    }
  }
  return strides;
}

}  // namespace

bool PageView::event(QEvent* event) {
  // The keys of the page come before the same ones of the window's menus.
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = static_cast<const QKeyEvent&>(*event);  // NOLINT: by the type of the event
    if (key.key() == Qt::Key_Space || key.key() == Qt::Key_Delete) event->accept();
  }
  return QWidget::event(event);
}

void PageView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  LayOut();
}

void PageView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) LayOut();
}

void PageView::mouseMoveEvent(QMouseEvent* event) {
  const auto panel = PanelAt(event->position());
  const auto what = panel ? FindCurve(Sight(*panel), style_, event->position(), kReach)
                          : std::optional<PointedAt>();
  PointAt(what, event->position().toPoint());
}

void PageView::mousePressEvent(QMouseEvent* event) {
  isByKeys_ = false;
  const auto panel = PanelAt(event->position());
  if (panel) panel_ = *panel;
  const auto what = panel ? FindCurve(Sight(*panel), style_, event->position(), kReach)
                          : std::optional<PointedAt>();
  // A press for the menu keeps what is lifted, unless it is on another curve.
  if (event->button() == Qt::LeftButton || (what && what->Stride)) {
    Lift(what ? what->Stride : std::nullopt);
  }
}

void PageView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (const auto panel = PanelAt(event->position())) PutBack(*panel);
}

void PageView::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  PointAt(std::nullopt, {});
}

void PageView::wheelEvent(QWheelEvent* event) {
  constexpr double kNotch = 120;
  const auto panel = PanelAt(event->position());
  if (!panel || event->angleDelta().y() == 0) return;
  const QRectF& plot = geometry_.Plots[*panel];
  Zoom(*panel, std::pow(kStep, event->angleDelta().y() / kNotch),
       (plot.bottom() - event->position().y()) / plot.height());
  event->accept();
}

void PageView::keyPressEvent(QKeyEvent* event) {
  if (!HasPage() || !TakeKey(*event)) QWidget::keyPressEvent(event);
}

bool PageView::TakeKey(const QKeyEvent& event) {
  constexpr double kMiddle = 0.5;
  switch (event.key()) {
    case Qt::Key_Right:
    case Qt::Key_Down:
      return TakeArrow(1, event.modifiers());
    case Qt::Key_Left:
    case Qt::Key_Up:
      return TakeArrow(-1, event.modifiers());
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Zoom(panel_, kStep, kMiddle);
      return true;
    case Qt::Key_Minus:
      Zoom(panel_, 1 / kStep, kMiddle);
      return true;
    case Qt::Key_0:
      PutBack(panel_);
      return true;
    case Qt::Key_Escape:
      Lift(std::nullopt);
      PointAt(std::nullopt, {});
      return true;
    case Qt::Key_Space:
    case Qt::Key_Delete:
      if (style_.Lifted) emit LeaveOutAsked(*style_.Lifted);
      return true;
    default:
      return false;
  }
}

bool PageView::TakeArrow(int step, Qt::KeyboardModifiers keys) {
  isByKeys_ = true;
  if (keys.testFlag(Qt::ShiftModifier)) {
    GoToPanel(step);
  } else if (keys.testFlag(Qt::ControlModifier)) {
    PointAtLifted(step);
  } else {
    GoToStride(step);
  }
  return true;
}

void PageView::GoToPanel(int step) {
  const auto count = static_cast<int>(Page().Panels.size());
  if (count == 0) return;
  panel_ = static_cast<std::size_t>((static_cast<int>(panel_) + step + count) % count);
  update();
  PointAtLifted(0);
}

void PageView::GoToStride(int step) {
  const std::vector<pages::StrideId> strides = StridesOn(Page());
  if (strides.empty()) return;
  const auto count = static_cast<std::ptrdiff_t>(strides.size());
  const auto at = style_.Lifted ? std::ranges::find(strides, *style_.Lifted) : strides.end();
  std::ptrdiff_t next = step > 0 ? 0 : count - 1;
  if (at != strides.end()) next = (at - strides.begin() + step + count) % count;
  Lift(strides[static_cast<std::size_t>(next)]);
  PointAtLifted(0);
}

// Names an instant of the lifted curve in the panel that keys work, as hovering would.
void PageView::PointAtLifted(int step) {
  if (!style_.Lifted) return;
  const PanelInSight sight = Sight(panel_);
  const std::size_t from = pointed_ && pointed_->Stride ? pointed_->Instant : visit::kInstants / 2;
  auto what = InstantOf(sight, *style_.Lifted, from, step);
  if (!what && step != 0) return;
  if (!what) what = InstantOf(sight, *style_.Lifted, from, 1);
  if (!what) what = InstantOf(sight, *style_.Lifted, from, -1);
  PointAt(what, what ? what->Place.toPoint() : QPoint());
}

}  // namespace app
