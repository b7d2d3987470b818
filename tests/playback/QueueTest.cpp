#include <gtest/gtest.h>

#include "Nodes.h"
#include "playback/QueueItem.h"
#include "playback/QueueOutlook.h"

namespace tromelo {

namespace {

using testing::flag;
using testing::integer;
using testing::listOf;
using testing::number;
using testing::text;

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
  MpvList list = testing::notEntries();
  for (MpvMap entry : {
           MpvMap{{"filename", text("/films/One.mkv")}},
           MpvMap{{"filename", text("/films/two.mkv")}, {"title", text("Second.Film.mkv")}},
           MpvMap{{"current", flag(false)}, {"playing", flag(true)}},
           MpvMap{{"filename", number(1)}, {"playing", flag(true)}},
           MpvMap{{"filename", text("/films/a folder/")}, {"title", integer(1)}},
           MpvMap{{"filename", text("/films/\xff.mkv")}, {"current", integer(1)}},
           MpvMap{{"filename", text("/films/a.mkv")}, {"title", text("")}},
           MpvMap{{"current", text("yes")}, {"playing", flag(true)}},
       }) {
    list.push_back(testing::map(std::move(entry)));
  }
  const QString lost(QChar(0xfffd));
  const PlayQueue expected{{0, "One", "/films/One.mkv", false},
                           {1, "Second.Film", "/films/two.mkv", false},
                           {2, "", "", false},
                           {3, "", "", true},
                           {4, "a folder", "/films/a folder/", false},
                           {5, lost, "/films/" + lost + ".mkv", false},
                           {6, "", "/films/a.mkv", false},
                           {7, "", "", true}};
  EXPECT_EQ(playQueue(listOf(list)), expected);
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

TEST(QueueOutlook, IsNotSetBackByAReportOfWhatPlayedBefore) {
  QueueOutlook outlook;
  outlook.fileStarted();
  outlook.fileStarted();
  outlook.reported(queueOf(3, 0));
  outlook.reported(queueOf(3, 1));
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

TEST(QueueOutlook, CountsOnFromAnItemThatMovedAndFromOneThatWasJumpedTo) {
  PlayQueue queue = queueOf(3, 1);
  for (QueueItem& item : queue) item.path = item.title;
  QueueOutlook outlook;
  outlook.reported(queue);
  queue.removeFirst();
  outlook.reported(queue);
  outlook.fileStarted();
  EXPECT_FALSE(outlook.hasNext());
  EXPECT_EQ(outlook.unreportedTitle(), "2");

  outlook.reported(queueOf(4, 3));
  outlook.willStart(1);
  outlook.reported(queueOf(4, 3));
  outlook.fileStarted();
  EXPECT_EQ(outlook.unreportedTitle(), "1");
  EXPECT_TRUE(outlook.hasNext());
}

}  // namespace tromelo
