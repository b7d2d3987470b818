#include <gtest/gtest.h>

#include <QMimeData>
#include <QWheelEvent>
#include <vector>

#include "overlay/PlayerOverlayInput.h"
#include "platform/FilePath.h"
#include "player/DraggedFiles.h"
#include "support/Table.h"

namespace tromelo::testing {

TEST(WindowPressTest, TellsAClickFromAHandThatMovesTheWindow) {
  const QPointF at(100.5, 50);
  const QPoint origin(7, -9);
  for (const auto& [name, clickCount, moves, movedTo, isClick] :
       Table<const char*, int, std::vector<QPointF>, std::optional<QPoint>, bool>{
           {"still", 1, {}, {}, true},
           {"jitter of 3.0", 1, {at + QPointF(3, 0), at + QPointF(0, -3)}, {}, true},
           {"move of 3.1", 1, {at + QPointF(-3.1, 0)}, origin + QPoint(-3, 0), false},
           {"both ways count", 1, {at + QPointF(2.5, 2.5)}, origin + QPoint(3, 3), false},
           {"back", 1, {at + QPointF(9, 0), at + QPointF(1, 1)}, origin + QPoint(1, 1), false},
           {"second of two", 2, {at + QPointF(40, 0)}, {}, false},
           {"third", 3, {}, {}, false},
           {"third drags", 3, {at + QPointF(4, 0)}, origin + QPoint(4, 0), false},
       }) {
    SCOPED_TRACE(name);
    WindowPress press;
    EXPECT_EQ(press.begin(clickCount, at, origin), clickCount != 2);
    std::optional<QPoint> last;
    for (const QPointF& place : moves) last = press.drag(place);
    EXPECT_EQ(last, movedTo);
    EXPECT_EQ(press.end(), isClick);
    EXPECT_FALSE(press.end());
    EXPECT_EQ(press.drag(at + QPointF(50, 0)), std::nullopt);
  }
}

TEST(ClickCounterTest, CountsQuickPressesInOnePlace) {
  using std::chrono::milliseconds;
  ClickCounter clicks;
  const Table<int, QPointF, int> rows{{1000, {10, 10}, 1}, {1399, {15, 5}, 2}, {1600, {15, 5}, 3},
                                      {1700, {21, 5}, 1},  {2100, {21, 5}, 1}, {2200, {21, 11}, 1},
                                      {50, {21, 11}, 1},   {51, {21, 11}, 2}};
  for (const auto& [time, place, count] : rows)
    EXPECT_EQ(clicks.press(milliseconds(time), place, {milliseconds(400), 5}), count) << time;
}

TEST(ScrollTest, GivesWholeStepsAndKeepsTheRest) {
  ScrollSteps scroll;
  // One after the other: the rest goes from row to row.
  for (const auto& [name, movement, steps] :
       Table<const char*, ScrollMovement, double>{{"a notch", {{0, 1}, false}, 2},
                                                  {"half a step of a touchpad", {{0, -2}, true}, 0},
                                                  {"and its other half", {{0, -2}, true}, -1},
                                                  {"as much to the side", {{5, 5}, true}, 0},
                                                  {"more down than aside", {{3, -5}, true}, -1},
                                                  {"what was left, up", {{0, 5}, true}, 1},
                                                  {"an eighth of a notch", {{0, 0.125}, false}, 0},
                                                  {"seven more", {{0, 0.875}, false}, 2}})
    EXPECT_EQ(scroll.take(movement), steps) << name;
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

}  // namespace tromelo::testing
