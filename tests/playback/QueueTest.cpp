#include <gtest/gtest.h>

#include "engine/MpvValue.h"
#include "playback/QueueItem.h"
#include "playback/QueueOutlook.h"

namespace tromelo {

namespace {

MpvNode text(const char* value) { return MpvNode{std::string(value)}; }

/// `size` items, the one at `current` playing.
PlayQueue queueOf(qsizetype size, qsizetype current) {
  PlayQueue queue;
  for (qsizetype i = 0; i < size; ++i) {
    queue.append({i, QString::number(i), QString(), i == current});
  }
  return queue;
}

}  // namespace

TEST(Queue, EntriesAreNamedByTitleOrFile) {
  const MpvValue playlist = MpvNode{MpvList{
      MpvNode{MpvMap{{"filename", text("/films/One.mkv")}}},
      MpvNode{MpvMap{{"filename", text("/films/two.mkv")}, {"title", text("Second.Film.mkv")}}},
      MpvNode{true},
      MpvNode{MpvMap{{"current", MpvNode{false}}, {"playing", MpvNode{true}}}},
      MpvNode{MpvMap{{"filename", MpvNode{1.0}}, {"playing", MpvNode{true}}}},
  }};
  const PlayQueue expected{{0, "One", "/films/One.mkv", false},
                           {1, "Second.Film", "/films/two.mkv", false},
                           {2, "", "", false},
                           {3, "", "", true}};
  EXPECT_EQ(playQueue(playlist), expected);
  EXPECT_EQ(playQueue(MpvValue(1.0)), PlayQueue());
}

TEST(Queue, KnowsItsNeighbours) {
  const struct {
    PlayQueue queue;
    bool next;
    bool previous;
  } rows[] = {{queueOf(0, -1), false, false}, {queueOf(1, 0), false, false},
              {queueOf(3, 0), true, false},   {queueOf(3, 1), true, true},
              {queueOf(3, 2), false, true},   {queueOf(3, -1), false, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(hasNext(row.queue), row.next) << row.queue.size();
    EXPECT_EQ(hasPrevious(row.queue), row.previous) << row.queue.size();
  }
}

TEST(QueueOutlook, CountsWhatWasAskedForUntilItIsReported) {
  QueueOutlook outlook;
  outlook.reported(queueOf(5, 0));
  outlook.opened("a");
  outlook.appended("b");
  outlook.reported(queueOf(5, 1));  // of what played before
  outlook.fileStarted();
  EXPECT_TRUE(outlook.hasNext());
  EXPECT_EQ(outlook.unreportedTitle(), "a");
  outlook.reported(queueOf(1, 0));  // the second has not arrived
  EXPECT_TRUE(outlook.hasNext());
  EXPECT_EQ(outlook.unreportedTitle(), std::nullopt);
  outlook.fileStarted();
  EXPECT_FALSE(outlook.hasNext());
  EXPECT_EQ(outlook.unreportedTitle(), "b");
  outlook.reported(queueOf(2, 1));
  EXPECT_FALSE(outlook.hasNext());
}

TEST(QueueOutlook, FollowsAReportThatComesBeforeTheStartItTellsOf) {
  QueueOutlook outlook;
  outlook.fileStarted();
  outlook.reported(queueOf(3, 0));
  outlook.reported(queueOf(3, 1));
  outlook.fileStarted();
  EXPECT_TRUE(outlook.hasNext());
  outlook.fileStarted();
  EXPECT_FALSE(outlook.hasNext());
}

TEST(QueueOutlook, FollowsJumpsAndRemovals) {
  QueueOutlook outlook;
  outlook.reported(queueOf(3, 2));
  EXPECT_FALSE(outlook.hasNext());
  outlook.fileStarted();
  outlook.reported(queueOf(3, 0));  // a jump back to the first
  EXPECT_TRUE(outlook.hasNext());
  outlook.fileStarted();
  outlook.fileStarted();
  EXPECT_FALSE(outlook.hasNext());
  outlook.reported(queueOf(1, 0));
  EXPECT_FALSE(outlook.hasNext());
}

}  // namespace tromelo
