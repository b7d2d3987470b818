#include <gtest/gtest.h>

#include "Nodes.h"
#include "playback/QueueItem.h"
#include "playback/QueueProgress.h"
#include "support/Table.h"

namespace tromelo::testing {

/// `size` items, the one at `current` playing.
PlayQueue queueOf(qsizetype size, qsizetype current) {
  PlayQueue queue;
  for (qsizetype i = 0; i < size; ++i) {
    queue.append({i, QString::number(i), QString(), i == current});
  }
  return queue;
}

TEST(Queue, EntriesAreNamedByTitleOrFile) {
  MpvList list = notEntries();
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
    list.push_back(map(std::move(entry)));
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
  PlayQueue queue = playQueue(listOf(list));
  EXPECT_EQ(queue[5].file, "/films/\xff.mkv");
  for (QueueItem& item : queue) item.file.clear();
  EXPECT_EQ(queue, expected);
  EXPECT_EQ(playQueue(MpvValue(1.0)), PlayQueue());
}

TEST(Queue, KnowsItsNeighbours) {
  const Table<PlayQueue, bool, bool> rows{
      {queueOf(0, -1), false, false}, {queueOf(1, 0), false, false},
      {queueOf(3, 0), true, false},   {queueOf(3, 1), true, true},
      {queueOf(3, 2), false, true},   {queueOf(3, -1), false, false}};
  for (const auto& [queue, next, previous] : rows) {
    EXPECT_EQ(hasNext(queue), next) << queue.size();
    EXPECT_EQ(hasPrevious(queue), previous) << queue.size();
  }
}

TEST(QueueProgress, WhatWasReplacedMeanwhileIsNotToldAndWhatWasRefusedIsNotWaitedFor) {
  QueueProgress progress;
  progress.opened();
  progress.queued(1);
  progress.appended();
  progress.opened();
  progress.appended();
  progress.started();
  EXPECT_FALSE(progress.failed(1, "gone"));
  progress.queued(2);
  progress.started();
  EXPECT_FALSE(progress.failed(2, "gone"));
  progress.cameToRest();
  progress.queued(3);
  progress.started();
  EXPECT_TRUE(progress.failed(3, "gone"));
  progress.cameToRest();

  const PlayQueue queue{{0, "Film", QString(), false, 3}};
  EXPECT_EQ(progress.nextFailure(queue)->title, "Film");
  EXPECT_FALSE(progress.nextFailure(queue)) << "another is on its way";
  progress.refused();
  EXPECT_TRUE(progress.nextFailure(queue)->isLast);
}

}  // namespace tromelo::testing
