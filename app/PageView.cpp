// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/PageView.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

#include "app/DarkOutline.h"
#include "app/PointedText.h"
#include "app/QtText.h"
#include "app/ToolTip.h"

namespace app {

using plot::PanelView;

namespace {

// Texts on a screen are no smaller than can be read, as far as panels keep room for their curves.
double EnlargementFor(const QSizeF& sheet) {
  constexpr double kLeastDigits = 9;     // pixels
  constexpr double kDigitsOfPaper = 58;  // tenths of a point
  constexpr double kAreaOfA4 = 5953.0 * 8419.0;
  constexpr double kMost = 1.45;
  const double scale = std::sqrt(sheet.width() * sheet.height() / kAreaOfA4);
  return scale > 0 ? std::clamp(kLeastDigits / (kDigitsOfPaper * scale), 1.0, kMost) : 1;
}

bool HasStride(const pages::Page& page, const pages::StrideId& stride) {
  return std::ranges::any_of(page.Panels, [&](const pages::Panel& panel) {
    const auto* curves = std::get_if<pages::CurvePanel>(&panel);
    return curves != nullptr &&
           std::ranges::find(curves->Curves, stride, &pages::Curve::Id) != curves->Curves.end();
  });
}

// A tooltip that shows its text as it stands.
}  // namespace

PageView::PageView(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("pageView"));
  setAccessibleName(tr("Page of curves"));
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

void PageView::SetPage(pages::PageSet set, std::size_t index, const QString& hint) {
  set_ = std::move(set);
  index_ = index;
  hint_ = hint;
  if (style_.Lifted && (!HasPage() || !HasStride(Page(), *style_.Lifted))) style_.Lifted.reset();
  if (!HasPage() || panel_ >= Page().Panels.size()) panel_ = 0;
  setAccessibleName(HasPage() ? tr("Page of curves: %1").arg(ToQString(Page().Title)) : hint);
  PointAt(std::nullopt, {});
  LayOut();
  emit Changed();
}

void PageView::SetStyle(plot::Shown curves, bool isMonochrome) {
  style_.Curves = curves;
  style_.IsMonochrome = isMonochrome;
  PointAt(std::nullopt, {});
  LayOut();
}

void PageView::LayOut() {
  style_.IsDark = AreDark(palette());
  picture_ = {};
  update();
  if (!HasPage()) return;
  constexpr std::int64_t kMany = 16;  // strides, which take long to draw in thicker lines
  style_.IsQuick = set_.LeftStrides + set_.RightStrides > kMany;
  style_.Enlarged = EnlargementFor(size());
  // The margins of the paper are left outside.
  constexpr double kOfMargin = 0.8;
  const QRectF place = rect();
  const double margin = kOfMargin * plot::GeometryOf(Page(), place, style_.Enlarged).Head.left();
  const QRectF sheet = place.adjusted(-margin, -margin, margin, margin);
  geometry_ = plot::GeometryOf(Page(), sheet, style_.Enlarged);
}

PanelInSight PageView::Sight(std::size_t panel) const {
  const auto zoom = zooms_.find({Page().Kind, panel});
  return {Page(), panel, geometry_.Plots.at(panel),
          zoom == zooms_.end() ? WholeOf(Page().Panels.at(panel)) : zoom->second};
}

void PageView::Draw() {
  picture_ = QPixmap((QSizeF(size()) * devicePixelRatioF()).toSize());
  picture_.setDevicePixelRatio(devicePixelRatioF());
  QPainter painter(&picture_);
  if (!HasPage()) {
    painter.fillRect(rect(), palette().color(QPalette::Base));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), static_cast<int>(Qt::AlignCenter) | Qt::TextWordWrap, hint_);
    return;
  }
  plot::DrawPage(painter, set_, index_, geometry_.Sheet, style_);
  for (const auto& [key, zoom] : zooms_) {
    if (key.first == Page().Kind && key.second < Page().Panels.size()) {
      DrawAgain(painter, key.second);
    }
  }
}

void PageView::DrawAgain(QPainter& painter, std::size_t panel) {
  const auto zoom = zooms_.find({Page().Kind, panel});
  plot::DrawPanel(painter, set_, index_, panel, geometry_, style_,
                  zoom == zooms_.end() ? std::nullopt : std::optional(zoom->second));
}

void PageView::DrawPanels(const std::vector<std::size_t>& panels) {
  if (!HasPage()) return;
  if (!picture_.isNull()) {
    QPainter painter(&picture_);
    for (const std::size_t panel : panels) DrawAgain(painter, panel);
  }
  update();
}

QPixmap PageView::Picture() {
  if (picture_.isNull()) Draw();
  return picture_;
}

void PageView::Lift(const std::optional<pages::StrideId>& stride) {
  if (stride == style_.Lifted) return;
  style_.Lifted = stride;
  if (!HasPage()) return;
  std::vector<std::size_t> panels(Page().Panels.size());
  std::iota(panels.begin(), panels.end(), 0);
  DrawPanels(panels);
  emit Changed();
}

void PageView::PutBack(std::size_t panel) {
  if (zooms_.erase({Page().Kind, panel}) == 0) return;
  DrawPanels({panel});
  emit Changed();
}

void PageView::PutPanelsBack() {
  zooms_.clear();
  picture_ = {};
  update();
  emit Changed();
}

// `share` of the panel, from its lower edge, stays where it is.
void PageView::Zoom(std::size_t panel, double factor, double share) {
  constexpr double kMost = 500;
  const PanelInSight sight = Sight(panel);
  const PanelView whole = WholeOf(Page().Panels.at(panel));
  const double all = whole.High - whole.Low;
  const double span = (sight.View.High - sight.View.Low) / factor;
  if (std::holds_alternative<pages::BarPanel>(Page().Panels.at(panel)) || span < all / kMost) {
    return;
  }
  if (span >= all) {
    PutBack(panel);
    return;
  }
  PanelView view = sight.View;
  const double fixed = view.Low + share * (view.High - view.Low);
  view.Low = std::clamp(fixed - share * span, whole.Low, whole.High - span);
  view.High = view.Low + span;
  zooms_[{Page().Kind, panel}] = view;
  PointAt(std::nullopt, {});
  DrawPanels({panel});
  emit Changed();
}

std::optional<std::size_t> PageView::PanelAt(const QPointF& point) const {
  if (!HasPage()) return std::nullopt;
  for (std::size_t i = 0; i < geometry_.Plots.size(); ++i) {
    if (geometry_.Plots[i].contains(point)) return i;
  }
  return std::nullopt;
}

void PageView::PointAt(const std::optional<PointedAt>& what, const QPoint& place) {
  if (what == pointed_ && !what) return;
  if (what != pointed_) update();
  pointed_ = what;
  const QString text = what ? ToQString(PointedText(set_, Page(), *what)) : QString();
  if (accessibleDescription() != text) setAccessibleDescription(text);
  if (text.isEmpty()) {
    QToolTip::hideText();
  } else {
    QToolTip::showText(mapToGlobal(place), UnwrappedToolTip(text), this);
  }
  emit Pointed(text);
}

void PageView::paintEvent(QPaintEvent* /*event*/) {
  if (picture_.isNull() || picture_.devicePixelRatio() != devicePixelRatioF()) Draw();
  QPainter painter(this);
  painter.drawPixmap(0, 0, picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  if (isByKeys_ && hasFocus() && HasPage()) {
    constexpr double kWidth = 2;
    painter.setPen(QPen(palette().color(QPalette::Highlight), kWidth));
    painter.drawRect(geometry_.Plots.at(panel_).adjusted(-kWidth, -kWidth, kWidth, kWidth));
  }
  const bool isOnCurve =
      pointed_ && HasPage() &&
      !std::holds_alternative<pages::BarPanel>(Page().Panels.at(pointed_->Panel));
  if (isOnCurve && geometry_.Plots.at(pointed_->Panel).contains(pointed_->Place)) {
    constexpr double kRadius = 3.5;
    painter.setPen(palette().color(QPalette::Base));
    painter.setBrush(palette().color(QPalette::Text));
    painter.drawEllipse(pointed_->Place, kRadius, kRadius);
  }
}

}  // namespace app
