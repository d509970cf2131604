// SPDX-License-Identifier: GPL-3.0-or-later

#include "Recording.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>

namespace plot_tests {

namespace {

class RecordingEngine : public QPaintEngine {
 public:
  RecordingEngine() : QPaintEngine(AllFeatures) {}

  Recording Drawn;

  bool begin(QPaintDevice* /*device*/) override { return true; }
  bool end() override { return true; }
  Type type() const override { return User; }
  void updateState(const QPaintEngineState& /*state*/) override {}
  void drawPixmap(const QRectF& /*to*/, const QPixmap& /*pixmap*/,
                  const QRectF& /*from*/) override {}

  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    QPolygonF polygon;
    for (int i = 0; i < count; ++i) polygon << points[i];
    Add(polygon, mode != PolylineMode);
  }

  void drawLines(const QLineF* lines, int count) override {
    for (int i = 0; i < count; ++i) Add(QPolygonF({lines[i].p1(), lines[i].p2()}), false);
  }

  void drawRects(const QRectF* rects, int count) override {
    for (int i = 0; i < count; ++i) Add(QPolygonF(rects[i]), true);
  }

  void drawPath(const QPainterPath& path) override {
    for (const QPolygonF& part : path.toSubpathPolygons()) Add(part, true);
  }

  void drawTextItem(const QPointF& base, const QTextItem& item) override {
    const QRectF ink = QFontMetricsF(item.font()).tightBoundingRect(item.text()).translated(base);
    Drawn.Texts.push_back({item.text(), painter()->transform().mapRect(ink),
                           painter()->pen().color(), item.font().bold()});
  }

 private:
  void Add(const QPolygonF& polygon, bool isFilled) {
    const QPolygonF placed = painter()->transform().map(polygon);
    if (painter()->pen().style() != Qt::NoPen) Drawn.Lines.push_back({placed, painter()->pen()});
    if (isFilled && painter()->brush().style() != Qt::NoBrush) {
      Drawn.Areas.push_back({placed, painter()->brush().color()});
    }
  }
};

class RecordingDevice : public QPaintDevice {
 public:
  mutable RecordingEngine Engine;

  QPaintEngine* paintEngine() const override { return &Engine; }

 protected:
  int metric(PaintDeviceMetric metric) const override {
    constexpr int kDots = 720;
    constexpr int kLength = 10000;
    switch (metric) {
      case PdmDpiX:
      case PdmDpiY:
      case PdmPhysicalDpiX:
      case PdmPhysicalDpiY:
        return kDots;
      case PdmDevicePixelRatio:
        return 1;
      default:
        return kLength;
    }
  }
};

}  // namespace

Recording Record(const std::function<void(QPainter&)>& draw) {
  RecordingDevice device;
  {
    QPainter painter(&device);
    draw(painter);
  }
  return device.Engine.Drawn;
}

}  // namespace plot_tests
