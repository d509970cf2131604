// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/CurvesFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QStyleOptionViewItem>
#include <QTest>
#include <QUrl>

namespace tests {

namespace {

constexpr int kPatienceWithReading = 20000;  // milliseconds

}  // namespace

sample::TrialBuilder RisingKnees(float start) {
  constexpr float kRate = 100;
  const auto rising = [start](std::int32_t frame) {
    return std::array{start + 10.0F * (static_cast<float>(frame - 1) / kRate), 0.0F, 0.0F};
  };
  sample::TrialBuilder walk;
  walk.StoredAs(sample::Storage::Single).Frames(1, 401).Rate(kRate);
  walk.AddPoint("LKneeAngles", rising).AddPoint("RKneeAngles", rising);
  for (const float strike : {0.5F, 1.5F, 2.5F, 3.5F}) walk.AddEvent("Left", "Foot Strike", strike);
  for (const float strike : {1.0F, 2.0F, 3.0F}) walk.AddEvent("Right", "Foot Strike", strike);
  for (const float off : {1.125F, 2.125F, 3.125F}) walk.AddEvent("Left", "Foot Off", off);
  for (const float off : {0.625F, 1.625F, 2.625F}) walk.AddEvent("Right", "Foot Off", off);
  return walk;
}

CurvesTest::CurvesTest() {
  std::filesystem::create_directory(folder_ / "config");
  window_ = std::make_unique<app::CurvesWindow>();
}

void CurvesTest::Start(pages::PageKind page) {
  window_->ShowPage(page);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
  WaitUntilRead();
}

void CurvesTest::WaitUntilRead() {
  ASSERT_TRUE(QTest::qWaitFor([this] { return !window_->IsBusy(); }, kPatienceWithReading));
  QApplication::processEvents();
}

std::string CurvesTest::Write(const sample::TrialBuilder& trial, const std::string& name) {
  const auto path = folder_ / name;
  trial.Build().WriteTo(path);
  return path.string();
}

std::vector<std::string> CurvesTest::ThreeTrials() {
  return {Write(RisingKnees(0), "one.c3d"), Write(RisingKnees(10), "two.c3d"),
          Write(RisingKnees(20), "three.c3d")};
}

void CurvesTest::DropAll(const std::vector<std::string>& paths) {
  QMimeData data;
  QList<QUrl> urls;
  for (const std::string& path : paths) urls << QUrl::fromLocalFile(QString::fromStdString(path));
  data.setUrls(urls);
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window_.get(), &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(window_.get(), &drop);
  WaitUntilRead();
}

QTreeWidgetItem* CurvesTest::Stride(int trial, const char* text) {
  for (int i = 0; i < Trial(trial)->childCount(); ++i) {
    if (Trial(trial)->child(i)->text(0) == QLatin1String(text)) return Trial(trial)->child(i);
  }
  throw std::out_of_range(text);
}

void CurvesTest::ClickCheckMark(QTreeWidgetItem* item) {
  for (auto* parent = item->parent(); parent != nullptr; parent = parent->parent()) {
    parent->setExpanded(true);
  }
  List()->scrollToItem(item);
  List()->setCurrentItem(item);
  QStyleOptionViewItem option;
  option.initFrom(List());
  option.rect = List()->visualItemRect(item);
  option.rect.setRight(option.rect.left() + List()->columnWidth(0) / 2);
  option.features = QStyleOptionViewItem::HasCheckIndicator;
  const QRect mark =
      List()->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, List());
  QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, mark.center());
  QApplication::processEvents();
}

std::size_t CurvesTest::Panel(const std::string& title) {
  const auto& panels = View().Page().Panels;
  for (std::size_t i = 0; i < panels.size(); ++i) {
    if (std::visit([](const auto& panel) { return panel.Title; }, panels[i]) == title) return i;
  }
  throw std::out_of_range(title);
}

const pages::CurvePanel& CurvesTest::CurvesOf(const std::string& title) {
  return std::get<pages::CurvePanel>(View().Page().Panels.at(Panel(title)));
}

QPoint CurvesTest::PlaceOf(const std::string& title, double percent, double value) {
  const app::PanelInSight sight = View().Sight(Panel(title));
  const auto share = [](double at, double low, double high) { return (at - low) / (high - low); };
  const double x = share(percent, sight.View.LowPercent, sight.View.HighPercent);
  const double y = share(value, sight.View.Low, sight.View.High);
  return QPointF(sight.Plot.left() + x * sight.Plot.width(),
                 sight.Plot.bottom() - y * sight.Plot.height())
      .toPoint();
}

void CurvesTest::HoverAt(const QPoint& place) {
  QTest::mouseMove(&View(), place);
  constexpr int kLateMoves = 40;  // milliseconds; of the window system
  QTest::qWait(kLateMoves);
}

}  // namespace tests
