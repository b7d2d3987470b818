#include <gtest/gtest.h>

#include "overlay/PopoverFrame.h"
#include "overlay/QueueModel.h"
#include "overlay/TrackModel.h"
#include "support/Table.h"

namespace tromelo::testing {

/// Files by their letters; the one in upper case plays.
PlayQueue queueOf(const char* letters) {
  PlayQueue queue;
  for (const QChar letter : QString(letters))
    queue.append({.id = queue.size(),
                  .title = letter.toLower(),
                  .path = letter.toLower(),
                  .isCurrent = letter.isUpper()});
  return queue;
}

void listenTo(QAbstractItemModel& model, QStringList& log) {
  const auto note = [&log](const char* what) {
    return [&log, what](const QModelIndex&, int first, int last) {
      log << QString("%1 %2-%3").arg(what).arg(first).arg(last);
    };
  };
  QObject::connect(&model, &QAbstractItemModel::rowsRemoved, &model, note("gone"));
  QObject::connect(&model, &QAbstractItemModel::rowsInserted, &model, note("new"));
  QObject::connect(&model, &QAbstractItemModel::rowsMoved, &model,
                   [&log](const QModelIndex&, int from, int, const QModelIndex&, int before) {
                     log << QString("moved %1 %2").arg(from).arg(before);
                   });
  QObject::connect(
      &model, &QAbstractItemModel::dataChanged, &model,
      [&log](const QModelIndex& first) { log << QString("other %1").arg(first.row()); });
  QObject::connect(&model, &QAbstractItemModel::modelReset, &model, [&log] { log << "reset"; });
}

TEST(QueueModelTest, ChangesNoMoreRowsThanItHasTo) {
  for (const auto& [name, before, after, changes] :
       Table<const char*, const char*, const char*, QStringList>{
           {"the first list", "", "Abc", {"new 0-2"}},
           {"the same", "aBc", "aBc", {}},
           {"the next one plays", "aBcd", "abCd", {"other 1", "other 2"}},
           {"one is removed", "Abcd", "Abd", {"gone 2-2", "other 2"}},
           {"the last one is", "Abc", "Ab", {"gone 2-2"}},
           {"the current one is", "aBcd", "aCd", {"gone 1-1", "other 1", "other 2"}},
           {"two are appended", "Ab", "Abcd", {"new 2-3"}},
           {"one comes in between", "Abc", "Axbc", {"new 1-1", "other 2", "other 3"}},
           {"one goes down", "Abcd", "Acdb", {"moved 1 4", "other 1", "other 2", "other 3"}},
           {"one goes up",
            "Abcd",
            "dAbc",
            {"moved 3 0", "other 0", "other 1", "other 2", "other 3"}},
           {"one is replaced", "Abc", "Axc", {"gone 1-1", "new 1-1"}},
           {"what is up next is cleared", "abCde", "C", {"gone 0-4", "new 0-0"}},
           {"a file that is there twice", "Aaab", "Aab", {"gone 2-2", "other 2"}},
           {"nothing remains", "Ab", "", {"gone 0-1"}},
       }) {
    SCOPED_TRACE(name);
    QueueModel model;
    model.setItems(queueOf(before));
    QStringList log;
    listenTo(model, log);
    model.setItems(queueOf(after));
    const PlayQueue expected = queueOf(after);
    EXPECT_EQ(model.items(), expected);
    ASSERT_EQ(model.rowCount(), expected.size());
    const int title = model.roleNames().key("title");
    for (int i = 0; i < model.rowCount(); ++i)
      EXPECT_EQ(model.data(model.index(i), title), expected[i].title);
    EXPECT_EQ(model.current(), currentIndex(expected).value_or(-1));
    EXPECT_EQ(log, changes) << qPrintable(log.join(u'|'));
  }
}

TEST(TrackModelTest, KeepsItsRowsWhileAnotherTrackIsChosen) {
  QList<MediaTrack> tracks(3);
  for (qsizetype i = 0; i < tracks.size(); ++i) tracks[i].id = 10 + i;
  TrackModel model;
  model.setTracks(tracks);
  EXPECT_FALSE(model.hasSelection());
  QStringList log;
  listenTo(model, log);
  tracks[2].isSelected = true;
  model.setTracks(tracks);
  EXPECT_TRUE(model.hasSelection());
  EXPECT_EQ(model.idAt(2), 12);
  EXPECT_EQ(log, QStringList{"other 2"});
}

TEST(PopoverFrameTest, StaysAboveItsButtonAndInsideTheRoom) {
  const QRectF room(10, 10, 500, 200);
  for (const auto& [name, middle, wanted, frame] : Table<const char*, double, QSizeF, QRectF>{
           {"over the button", 250, {100, 50}, {200, 160, 100, 50}},
           {"at the right edge", 490, {100, 50}, {410, 160, 100, 50}},
           {"at the left edge", 12, {100, 50}, {10, 160, 100, 50}},
           {"too high", 250, {100, 900}, {200, 10, 100, 200}},
           {"too wide", 250, {900, 50}, {10, 160, 500, 50}},
           {"between pixels", 250.3, {101, 50.5}, {200, 160, 101, 50}},
       })
    EXPECT_EQ(PopoverFrame::within(room, middle, wanted), frame) << name;
  EXPECT_TRUE(PopoverFrame::within(QRectF(10, 10, -20, -20), 0, {100, 50}).isEmpty());
}

}  // namespace tromelo::testing
