// SPDX-License-Identifier: GPL-3.0-or-later

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "plot/Cutting.h"

namespace {

using plot::CutArea;
using plot::CutLine;
using plot::PiecesOf;
using testing::ElementsAre;
using testing::IsEmpty;

const QRectF kRoom(0, 0, 10, 10);

QPolygonF Points(std::initializer_list<QPointF> points) { return {QList<QPointF>(points)}; }

TEST(CutLine, InsideItsRoomStaysAsItIs) {
  const QPolygonF line = Points({{1, 1}, {5, 9}, {9, 1}});
  EXPECT_THAT(CutLine(line, kRoom), ElementsAre(line));
}

TEST(CutLine, ThatLeavesItsRoomAndComesBackIsTwoLinesThatEndAtTheBorder) {
  EXPECT_THAT(CutLine(Points({{1, 5}, {3, 15}, {5, 5}}), kRoom),
              ElementsAre(Points({{1, 5}, {2, 10}}), Points({{4, 10}, {5, 5}})));
}

TEST(CutLine, AcrossTheWholeRoomWithBothEndsOutsideKeepsWhatIsInside) {
  EXPECT_THAT(CutLine(Points({{-5, 5}, {15, 5}}), kRoom), ElementsAre(Points({{0, 5}, {10, 5}})));
}

TEST(CutLine, OutsideItsRoomIsNothing) {
  EXPECT_THAT(CutLine(Points({{-5, -5}, {15, -5}, {20, 20}}), kRoom), IsEmpty());
}

TEST(CutLine, OfASinglePointIsThatPointWhereItIsInside) {
  EXPECT_THAT(CutLine(Points({{3, 3}}), kRoom), ElementsAre(Points({{3, 3}})));
  EXPECT_THAT(CutLine(Points({{3, 13}}), kRoom), IsEmpty());
}

TEST(CutArea, LargerThanItsRoomFillsTheRoom) {
  const QPolygonF cut = CutArea(Points({{-5, -5}, {15, -5}, {15, 15}, {-5, 15}}), kRoom);
  EXPECT_EQ(cut.boundingRect(), kRoom);
}

TEST(CutArea, OutsideItsRoomIsEmpty) {
  EXPECT_TRUE(CutArea(Points({{11, 0}, {15, 0}, {15, 5}}), kRoom).isEmpty());
}

TEST(CutArea, ThatCrossesABorderEndsThere) {
  const QPolygonF cut = CutArea(Points({{2, 5}, {4, 15}, {6, 5}}), kRoom);
  EXPECT_THAT(cut, ElementsAre(QPointF(2, 5), QPointF(3, 10), QPointF(5, 10), QPointF(6, 5)));
}

TEST(PiecesOf, RowWithMissingPointsAreWhatStandsBetweenThem) {
  EXPECT_THAT(PiecesOf({{}, QPointF(1, 1), QPointF(2, 2), {}, {}, QPointF(5, 5)}),
              ElementsAre(Points({{1, 1}, {2, 2}}), Points({{5, 5}})));
}

}  // namespace
