#include "playback/QueueOrder.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <numeric>

#include "support/Table.h"

namespace tromelo::testing {

/// As the engine does them.
QueueOrder done(QueueOrder order, const QList<QueueMove>& moves) {
  for (const QueueMove& move : moves) {
    const qint64 entry = order[move.from];
    order.insert(move.before, entry);
    order.remove(move.from < move.before ? move.from : move.from + 1);
  }
  return order;
}

TEST(QueueOrder, IsReachedByAsFewMovesAsThereAre) {
  for (const auto& [name, order, wanted, moves] :
       Table<const char*, QueueOrder, QueueOrder, qsizetype>{
           {"nothing", {}, {}, 0},
           {"as it is", {7, 8, 9}, {7, 8, 9}, 0},
           {"one goes to the end", {1, 2, 3, 4}, {2, 3, 4, 1}, 1},
           {"one comes to the front", {1, 2, 3, 4}, {4, 1, 2, 3}, 1},
           {"two change places", {1, 2, 3, 4, 5}, {1, 4, 3, 2, 5}, 2},
           {"the other way round", {1, 2, 3, 4}, {4, 3, 2, 1}, 3}}) {
    const auto found = movesBetween(order, wanted);
    EXPECT_EQ(done(order, found), wanted) << name;
    EXPECT_EQ(found.size(), moves) << name;
  }
  QRandomGenerator random(1);
  for (int round = 0; round < 200; ++round) {
    QueueOrder order(random.bounded(1, 40));
    std::iota(order.begin(), order.end(), 100);
    QueueOrder wanted = order;
    std::shuffle(wanted.begin(), wanted.end(), random);
    ASSERT_EQ(done(order, movesBetween(order, wanted)), wanted) << round;
  }
}

TEST(QueueOrder, LeavesToChanceOnlyWhatIsStillToCome) {
  const RandomBelow first = [](qsizetype) { return 0; };
  const RandomBelow last = [](qsizetype end) { return end - 1; };
  const QueueOrder order{1, 2, 3, 4, 5, 6};
  EXPECT_EQ(shuffled(order, {1, 5}, 3, first), QueueOrder({1, 5, 3, 4, 6, 2}));
  EXPECT_EQ(shuffled(order, {}, -1, last), order);
  EXPECT_EQ(mixedIn(order, {5, 6}, 3, first), QueueOrder({1, 2, 3, 6, 5, 4}));
  EXPECT_EQ(mixedIn(order, {1, 5}, 3, last), QueueOrder({2, 3, 4, 6, 1, 5}));
  EXPECT_EQ(restored({9, 5, 1, 3, 8}, {1, 2, 3, 5}), QueueOrder({1, 3, 5, 8, 9}));
}

}  // namespace tromelo::testing
