#include <gtest/gtest.h>

#include <QMimeData>
#include <QWheelEvent>
#include <vector>

#include "overlay/ClickCounter.h"
#include "overlay/ScrollSteps.h"
#include "overlay/WindowPress.h"
#include "platform/FilePath.h"
#include "player/DraggedFiles.h"
#include "support/Table.h"

namespace tromelo::testing {
namespace {

TEST(WindowPressTest, TellsAClickFromAHandThatMovesTheWindow) {
  struct Row {
    const char* name;
    int clickCount;
    std::vector<QPointF> moves;
    std::optional<QPoint> movedTo;
    bool isClick;
  };
  const QPointF at(100.5, 50);
  const QPoint origin(7, -9);
  for (const Row& row : {
           Row{"still", 1, {}, {}, true},
           Row{"jitter of 3.0", 1, {at + QPointF(3, 0), at + QPointF(0, -3)}, {}, true},
           Row{"move of 3.1", 1, {at + QPointF(-3.1, 0)}, origin + QPoint(-3, 0), false},
           Row{"both ways count", 1, {at + QPointF(2.5, 2.5)}, origin + QPoint(3, 3), false},
           Row{"back inside",
               1,
               {at + QPointF(9, 0), at + QPointF(1, 1)},
               origin + QPoint(1, 1),
               false},
           Row{"second of two", 2, {at + QPointF(40, 0)}, {}, false},
           Row{"third", 3, {}, {}, false},
           Row{"third drags", 3, {at + QPointF(4, 0)}, origin + QPoint(4, 0), false},
       }) {
    SCOPED_TRACE(row.name);
    WindowPress press;
    EXPECT_EQ(press.begin(row.clickCount, at, origin), row.clickCount != 2);
    std::optional<QPoint> movedTo;
    for (const QPointF& place : row.moves) movedTo = press.drag(place);
    EXPECT_EQ(movedTo, row.movedTo);
    EXPECT_EQ(press.end(), row.isClick);
    EXPECT_FALSE(press.end());
    EXPECT_EQ(press.drag(at + QPointF(50, 0)), std::nullopt);
  }
}

TEST(ClickCounterTest, CountsQuickPressesInOnePlace) {
  using std::chrono::milliseconds;
  ClickCounter clicks;
  for (const auto& [time, place, count] : Table<int, QPointF, int>{{1000, {10, 10}, 1},
                                                                   {1399, {15, 5}, 2},
                                                                   {1600, {15, 5}, 3},
                                                                   {1700, {21, 5}, 1},
                                                                   {2100, {21, 5}, 1},
                                                                   {2200, {21, 11}, 1},
                                                                   {50, {21, 11}, 1},
                                                                   {51, {21, 11}, 2}})
    EXPECT_EQ(clicks.press(milliseconds(time), place, {milliseconds(400), 5}), count) << time;
}

TEST(ScrollTest, GivesWholeStepsAndKeepsTheRest) {
  struct Row {
    const char* name;
    ScrollMovement movement;
    double steps;
  };
  ScrollSteps scroll;
  // One after the other: the rest goes from row to row.
  for (const Row& row : {
           Row{"a notch", {{0, 1}, false}, 2},
           Row{"half a step of a touchpad", {{0, -2}, true}, 0},
           Row{"and its other half", {{0, -2}, true}, -1},
           Row{"as much to the side", {{5, 5}, true}, 0},
           Row{"nothing", {{0, 0}, true}, 0},
           Row{"more down than aside", {{3, -5}, true}, -1},
           Row{"what was left, up", {{0, 5}, true}, 1},
           Row{"an eighth of a notch", {{0, 0.125}, false}, 0},
           Row{"seven more", {{0, 0.875}, false}, 2},
       })
    EXPECT_EQ(scroll.take(row.movement), row.steps) << row.name;
}

TEST(ScrollTest, TrustsPointsWhereTheHostCan) {
  const auto movement = [](QPoint points, QPoint angle, bool hostPoints) {
    return scrollMovement(
        QWheelEvent({}, {}, points, angle, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false),
        hostPoints);
  };
  EXPECT_EQ(movement({0, 7}, {0, 30}, true).delta, QPointF(0, 7));
  EXPECT_TRUE(movement({0, 7}, {0, 30}, true).isPrecise);
  for (const bool hostPoints : {true, false}) {
    const ScrollMovement lines = movement({0, hostPoints ? 0 : 15}, {0, 30}, hostPoints);
    EXPECT_EQ(lines.delta, QPointF(0, 0.25));
    EXPECT_FALSE(lines.isPrecise);
  }
}

/// As it comes from another program; a list that is set would be read and written anew.
struct ForeignDrag : QMimeData {
  QByteArray list;
  QVariant retrieveData(const QString& type, QMetaType) const override {
    return type == "text/uri-list" ? list : QByteArray();
  }
};

}  // namespace
}  // namespace tromelo::testing
