#include <QDir>

#include "RealPlayback.h"

namespace tromelo::testing {

/// A queue as the engine itself holds it, next to what the model shows.
struct RealQueue : RealPlayback {
  /// Several copies of a clip, of which the first plays and is paused.
  [[nodiscard]] bool holds(int files) {
    model_.open(QList<QUrl>(files, clip("sample.mp4")));
    return waitFor([&] { return model_.queue().size() == files && model_.isLoaded(); }) && pauses();
  }
  [[nodiscard]] bool plays(qint64 entry) {
    return waitFor([&] { return model_.isLoaded() && current() == entry; });
  }
  qint64 current() const {
    const auto index = currentIndex(model_.queue());
    return index ? model_.queue()[*index].entry : -1;
  }
  QueueOrder shown() const { return orderOf(model_.queue()); }
  /// What the engine says once it has done all that it was asked for.
  QueueOrder told() {
    QueueOrder order;
    int answers = 0;
    for (qsizetype i = 0; i < model_.queue().size(); ++i)
      model_.engine().readProperty("playlist/" + std::to_string(i) + "/id",
                                   [&](const std::optional<std::string>& id) {
                                     ++answers;
                                     order.append(id ? std::stoll(*id) : -1);
                                   });
    EXPECT_TRUE(waitFor([&] { return answers == model_.queue().size(); }));
    return order;
  }
};

TEST_F(RealQueue, IsReorderedAsThePersonSaysHoweverFast) {
  ASSERT_TRUE(holds(4));
  const QueueOrder order = shown();
  model_.moveQueueItem(3, 1);
  model_.moveQueueItem(0, 4);
  model_.moveQueueItem(2, 2);
  model_.moveQueueItem(9, 0);
  const QueueOrder wanted{order[3], order[1], order[2], order[0]};
  EXPECT_EQ(shown(), wanted) << "before the engine has answered";
  EXPECT_EQ(told(), wanted);
  EXPECT_TRUE(waitFor([&] { return shown() == wanted && current() == order[0]; }));
  EXPECT_EQ(model_.queue().last().id, 3);
}

TEST_F(RealQueue, ShufflesWhatIsToComeAndGoesBack) {
  constexpr int kFiles = 30;
  ASSERT_TRUE(holds(kFiles));
  const QueueOrder order = shown();
  model_.playQueueItem(4);
  ASSERT_TRUE(plays(order[4]));
  model_.toggleShuffle();
  const QueueOrder mixed = told();
  EXPECT_EQ(mixed.first(2), QueueOrder({order[0], order[4]})) << "what has played, what plays";
  EXPECT_NE(mixed, order);
  EXPECT_TRUE(waitFor([&] { return shown() == mixed && current() == order[4]; }));

  // What is added is mixed in behind what plays.
  model_.enqueue(QList<QUrl>(20, clip("sample.mp4")));
  const auto goesBehindThem = [&](qint64 entry) { return shown().indexOf(entry) >= kFiles; };
  ASSERT_TRUE(waitFor(
      [&] { return shown().size() == kFiles + 20 && std::ranges::any_of(order, goesBehindThem); }));
  EXPECT_EQ(told().first(2), mixed.first(2));

  model_.toggleShuffle();
  EXPECT_EQ(told().first(kFiles), order);
  QueueOrder sorted = told();
  std::ranges::sort(sorted);
  EXPECT_EQ(told(), sorted) << "and what came since is behind, as it came";
  EXPECT_TRUE(waitFor([&] { return current() == order[4]; }));
}

TEST_F(RealQueue, StartsOverAtItsEnd) {
  model_.open(QList<QUrl>{clip("short-wide.mp4"), clip("short-tall.mp4")});
  model_.toggleRepeatAll();
  ASSERT_TRUE(waitFor([this] { return model_.title() == "short-tall"; }));
  EXPECT_TRUE(waitFor([this] { return model_.title() == "short-wide"; }));
  model_.toggleRepeatAll();
  EXPECT_FALSE(model_.isRepeatingAll());
}

/// Short films in a folder of their own.
struct RealFolder : RealQueue {
  RealFolder() {
    for (const char* name : {"Film 2.mp4", "Film 10.mp4", "Film 11.mp4", "notes.txt"})
      QFile::copy(QString::fromStdString(clipPath("short-wide.mp4")), path(name));
  }
  QString path(const char* name) const { return directory_.filePath(name); }
  QUrl film(const char* name) const { return fileUrlFromPath(path(name).toStdString()); }
  QStringList titles() const {
    QStringList titles;
    for (const QueueItem& item : model_.queue()) titles << item.title;
    return titles;
  }
};

TEST_F(RealFolder, GoesOnWithTheNextVideoWhereThatIsWanted) {
  model_.open(film("Film 2.mp4"));
  ASSERT_TRUE(waitFor([this] { return model_.isLoaded() && !model_.isPaused(); }));
  ASSERT_TRUE(waitFor([this] { return model_.isPaused(); }));
  EXPECT_EQ(titles(), QStringList({"Film 2"})) << "it isn't, unless the person says so";

  model_.settings().setGoesOnInFolder(true);
  model_.open(film("Film 2.mp4"));
  ASSERT_TRUE(waitFor([this] { return model_.title() == "Film 11" && model_.isPaused(); }));
  EXPECT_TRUE(waitFor([this] { return titles() == QStringList({"Film 2", "Film 10", "Film 11"}); }))
      << titles().join(' ').toStdString();
}

TEST_F(RealFolder, AddsWhatFollowsAndIsNotThereYet) {
  player_.hasWindow = true;
  ASSERT_TRUE(RealPlayback::plays(film("Film 2.mp4")));
  model_.enqueue({film("Film 11.mp4")});
  ASSERT_TRUE(waitFor([this] { return model_.queue().size() == 2; }));
  model_.addRestOfFolder();
  ASSERT_TRUE(waitFor([this] { return model_.queue().size() == 3; }));
  EXPECT_EQ(titles(), QStringList({"Film 2", "Film 11", "Film 10"}));
  EXPECT_TRUE(player_.calls.contains("toast Added 1 videos to queue"));
}

TEST_F(RealFolder, AListOpensAsItWasSaved) {
  player_.hasWindow = true;
  model_.open({film("Film 11.mp4"), film("Film 2.mp4")});
  ASSERT_TRUE(waitFor([this] { return model_.queue().size() == 2; }));
  model_.presentSavePanel();
  chooser_.answer({film("list.m3u8")});
  ASSERT_TRUE(waitFor([this] { return player_.calls.contains("toast Queue saved"); }));
  model_.saveQueue(film("no/list.m3u8"));
  EXPECT_TRUE(waitFor([this] { return model_.errorMessage().contains("can't be saved"); }));

  QFile::remove(path("Film 2.mp4"));
  model_.open(film("list.m3u8"));
  ASSERT_TRUE(waitFor([this] { return titles() == QStringList({"Film 11"}); }));
  EXPECT_EQ(model_.errorMessage(), "Skipped Film 2.mp4, which isn't there.");

  // One that comes late is for nobody, once something else has been opened.
  model_.open(film("list.m3u8"));
  model_.open(film("Film 10.mp4"));
  ASSERT_TRUE(waitFor([this] { return titles() == QStringList({"Film 10"}); }));
  settle();
  EXPECT_EQ(titles(), QStringList({"Film 10"}));
}

TEST_F(RealFolder, FindsSubtitlesInAFolderBeside) {
  QDir(directory_.path()).mkdir("Subs");
  QFile subtitles(path("Subs/Film 2.en.srt"));
  ASSERT_TRUE(subtitles.open(QIODevice::WriteOnly));
  subtitles.write("1\n00:00:00,000 --> 00:00:01,000\nHello\n");
  subtitles.close();
  model_.open(film("Film 2.mp4"));
  EXPECT_TRUE(waitFor([this] { return model_.subtitleTracks().size() == 1; }));
}

}  // namespace tromelo::testing
