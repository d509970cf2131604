// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <utility>

#include <QPixmap>
#include <QWidget>

#include "app/CurveSearch.h"
#include "pages/Page.h"
#include "plot/PageDrawing.h"

namespace app {

// A page of curves in a window. It is kept as a picture of which only the panels are drawn anew
// that look otherwise.
//
// The mouse names the curve below it, a click lifts its stride, the wheel zooms a panel, a
// double-click puts it back. By keys: arrows go from stride to stride, with Ctrl along its curve,
// with Shift from panel to panel; plus, minus and 0 zoom that panel; Escape puts the stride back;
// Space and Delete leave it out.
class PageView : public QWidget {
  Q_OBJECT

 public:
  explicit PageView(QWidget* parent);

  // Shows page `index`, from 0, of `set`, or what `hint` says where there is none. Panels that were
  // zoomed on a page of that kind still are; a lifted stride stays so where it is in the set.
  void SetPage(pages::PageSet set, std::size_t index, const QString& hint);
  void SetStyle(plot::Shown curves, bool isMonochrome);

  bool HasPage() const { return index_ < set_.Pages.size(); }
  const pages::PageSet& Set() const { return set_; }
  const pages::Page& Page() const { return set_.Pages.at(index_); }
  // As it is seen; on paper it is neither dark nor enlarged.
  const plot::DrawingStyle& Style() const { return style_; }

  // Draws the stride in front of the others in all panels; none puts them all back.
  void Lift(const std::optional<pages::StrideId>& stride);
  const std::optional<pages::StrideId>& Lifted() const { return style_.Lifted; }

  // Shows all panels whole.
  void PutPanelsBack();
  // A panel of the page, its place in this widget and what is seen of it.
  PanelInSight Sight(std::size_t panel) const;

  // The page as it is seen.
  QPixmap Picture();

  QSize sizeHint() const override { return {900, 640}; }
  QSize minimumSizeHint() const override { return {160, 90}; }

 signals:
  // What is pointed at now; empty for nothing.
  void Pointed(const QString& text);
  void Changed();  // the lifted stride or a zoom
  void LeaveOutAsked(const pages::StrideId& stride);

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  using PanelKey = std::pair<pages::PageKind, std::size_t>;

  void LayOut();
  void Draw();
  void DrawAgain(QPainter& painter, std::size_t panel);
  void DrawPanels(const std::vector<std::size_t>& panels);
  std::optional<std::size_t> PanelAt(const QPointF& point) const;
  void PointAt(const std::optional<PointedAt>& what, const QPoint& place);
  void PointAtLifted(int step);
  void Zoom(std::size_t panel, double factor, double share);
  void PutBack(std::size_t panel);
  void GoToPanel(int step);
  void GoToStride(int step);
  bool TakeKey(const QKeyEvent& event);
  bool TakeArrow(int step, Qt::KeyboardModifiers keys);

  pages::PageSet set_;
  std::size_t index_ = 0;
  QString hint_;
  plot::DrawingStyle style_;
  plot::PageGeometry geometry_;
  std::map<PanelKey, plot::PanelView> zooms_;
  QPixmap picture_;  // null where it is to be drawn
  std::optional<PointedAt> pointed_;
  std::size_t panel_ = 0;  // that keys work
  bool isByKeys_ = false;  // and is marked
};

}  // namespace app
