#include "films/FilmStore.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <thread>

#include "support/Files.h"
#include "support/FullDisk.h"
#include "support/Table.h"

namespace tromelo::testing {

const FilmKey kFilm{"1f-aa", 7200};
const std::string kPlace = "/films/\xff night.mkv";  // no UTF-8
const FilmRecord kRecord{.position = 2530.5,
                         .audio = "2",
                         .subtitle = "/films/\xff night.srt",
                         .audioDelay = -0.05,
                         .subtitleDelay = 0.25};

struct FilmStoreTest : ::testing::Test {
  QTemporaryDir directory_;
  QString folder_ = directory_.filePath("Tromelo");
  QString path_ = folder_ + "/films.sqlite";
  FilmStore store_{path_};

  bool isOnDisk(const QByteArray& text) const {
    for (const QString& name : QDir(folder_).entryList(QDir::Files))
      if (readFile(folder_ + '/' + name).contains(text)) return true;
    return false;
  }
};

TEST_F(FilmStoreTest, KnowsAFilmByItsContentAndItsLength) {
  ASSERT_TRUE(store_.remember(kFilm, kRecord, kPlace));
  ASSERT_TRUE(store_.remember({"2e-bb", 60}, {.position = 3}, "/films/other.mkv"));
  ASSERT_TRUE(store_.addBookmark(kFilm, 12, "The storm"));
  EXPECT_EQ(store_.film({kFilm.identity, kFilm.duration + 0.9}), kRecord);
  EXPECT_EQ(store_.progress(kPlace), (FilmProgress{kRecord.position, kFilm.duration}));
  EXPECT_EQ(store_.progress("/films/moved.mkv"), std::nullopt);

  const FilmKey longer{kFilm.identity, kFilm.duration + 60};
  EXPECT_FALSE(store_.film(longer));
  EXPECT_TRUE(store_.bookmarks(longer).isEmpty());
  ASSERT_TRUE(store_.remember(longer, {.position = 5}, kPlace));
  EXPECT_FALSE(store_.film(kFilm));
  EXPECT_TRUE(store_.bookmarks(longer).isEmpty()) << "another film's";
}

TEST_F(FilmStoreTest, KeepsBookmarksInTheOrderOfTheFilm) {
  ASSERT_TRUE(store_.addBookmark(kFilm, 90, "End"));
  ASSERT_TRUE(store_.addBookmark(kFilm, 12, "Storm"));
  ASSERT_TRUE(store_.remember(kFilm, kRecord, kPlace));
  auto found = store_.bookmarks(kFilm);
  ASSERT_EQ(found.size(), 2);
  ASSERT_TRUE(store_.renameBookmark(found[0].id, "Sturm"));
  ASSERT_TRUE(store_.removeBookmark(found[1].id));
  EXPECT_EQ(FilmStore(path_).bookmarks(kFilm), (FilmBookmarks{{found[0].id, 12, "Sturm"}}));
}

TEST_F(FilmStoreTest, LeavesNothingOnTheDiskOfWhatIsForgotten) {
  const FilmKey other{"2e-bb", 60};
  for (const bool all : {false, true}) {
    ASSERT_TRUE(store_.remember(kFilm, kRecord, kPlace));
    ASSERT_TRUE(store_.remember(other, {}, "/films/other.mkv"));
    ASSERT_TRUE(store_.addBookmark(kFilm, 12, "Storm"));
    ASSERT_TRUE(isOnDisk("Storm"));
    ASSERT_TRUE(all ? store_.forgetAll() : store_.forget(kPlace));
    EXPECT_FALSE(isOnDisk("Storm"));
    EXPECT_FALSE(isOnDisk(kFilm.identity));
    EXPECT_FALSE(isOnDisk("night"));
    EXPECT_NE(store_.film(other).has_value(), all);
  }
}

TEST_F(FilmStoreTest, SaysWhatIsWrongWithTheFileAndGoesOn) {
  enum class After { remembered, refused };
  const auto damage = [this](const auto& change) {
    FilmStore(path_).remember(kFilm, kRecord, kPlace);
    QByteArray content = readFile(path_);
    change(content);
    writeFile(path_, content.toStdString());
  };
  const auto run = [this](const char* statement) {
    FilmDatabase other(path_);
    other.run("SELECT 1 FROM films");
    other.run(statement);
  };
  for (const auto& [what, prepare, words, after] :
       Table<const char*, std::function<void()>, const char*, After>{
           {"nonsense", [&] { writeFile(path_, "no database at all, by any means"); }, "damaged",
            After::remembered},
           {"cut off", [&] { damage([](QByteArray& file) { file.resize(file.size() / 3); }); },
            "damaged", After::remembered},
           {"overwritten",
            [&] {
              damage([](QByteArray& file) { file.replace(4096, 12000, QByteArray(12000, 'x')); });
            },
            "damaged", After::remembered},
           {"newer", [&] { run("PRAGMA user_version = 1000"); }, "newer", After::refused},
           {"a folder", [&] { QDir().mkpath(path_); }, "can't be remembered in", After::refused},
       }) {
    SCOPED_TRACE(what);
    QDir(folder_).removeRecursively();
    QDir().mkpath(folder_);
    prepare();
    const QByteArray before = readFile(path_);
    FilmStore store(path_);
    // What finds it damaged fails; the next that comes along has a new one.
    bool isDone = store.remember(kFilm, kRecord, kPlace);
    if (!isDone) isDone = store.remember(kFilm, kRecord, kPlace);
    EXPECT_EQ(isDone, after == After::remembered);
    EXPECT_EQ(store.film(kFilm).has_value(), after == After::remembered);
    EXPECT_TRUE(store.takeFault().contains(words));
    EXPECT_EQ(store.takeFault(), QString()) << "told twice";
    const QString kept = after == After::remembered ? path_ + ".damaged-1" : path_;
    EXPECT_EQ(readFile(kept), before);
  }
}

TEST_F(FilmStoreTest, AFileOfTheFirstVersionGoesOnWithAllOfIt) {
  ASSERT_TRUE(store_.remember(kFilm, kRecord, kPlace));
  {
    FilmDatabase former(path_);
    former.run("DROP TABLE adjustments");
    former.run("PRAGMA user_version = 1");
  }
  FilmStore store(path_);
  EXPECT_EQ(store.film(kFilm), kRecord);
  const FilmRecord changed{.position = 3000, .adjustments = {{"zoom", "0.5"}}};
  EXPECT_TRUE(store.remember(kFilm, changed, kPlace));
  EXPECT_EQ(FilmStore(path_).film(kFilm), changed);
  EXPECT_EQ(store.takeFault(), QString());
}

TEST_F(FilmStoreTest, AFullDiskAndALockLoseNothing) {
  ASSERT_TRUE(store_.remember(kFilm, kRecord, kPlace));
  const FilmRecord later{.position = 3000};
  {
    const FullDisk full(64);
    EXPECT_FALSE(store_.remember(kFilm, later, kPlace));
  }
  EXPECT_TRUE(store_.takeFault().contains("can't be remembered in"));
  FilmDatabase other(path_);
  ASSERT_TRUE(other.run("BEGIN EXCLUSIVE"));
  EXPECT_FALSE(store_.remember(kFilm, later, kPlace));
  EXPECT_TRUE(store_.takeFault().contains("another program"));
  EXPECT_EQ(store_.film(kFilm), kRecord);
  ASSERT_TRUE(other.run("COMMIT"));
  EXPECT_TRUE(store_.remember(kFilm, later, kPlace));
  EXPECT_EQ(store_.film(kFilm), later);
}

TEST_F(FilmStoreTest, ProgramsThatBeginAtOnceLoseNothingOfEachOthers) {
  const auto program = [this](const QByteArray& name) {
    FilmStore store(path_);
    for (int i = 0; i < 20; ++i)
      EXPECT_TRUE(store.remember({name + QByteArray::number(i), 60}, kRecord, kPlace));
  };
  std::thread other(program, "a");
  program("b");
  other.join();
  for (const char* name : {"a", "b"})
    for (int i = 0; i < 20; ++i)
      EXPECT_TRUE(store_.film({name + QByteArray::number(i), 60})) << name << i;
}

/// Remembers one film after the other, and says of each that it is done.
[[noreturn]] void rememberUntilKilled(const QString& path, int said) {
  FilmStore store(path);
  for (double position = 1;; ++position) {
    if (!store.remember(kFilm, {.position = position}, kPlace)) _exit(1);
    if (write(said, &position, sizeof position) != sizeof position) _exit(2);
  }
}

TEST_F(FilmStoreTest, WhatWasWrittenSurvivesAnyDeath) {
  for (int death = 0; death < 100; ++death) {
    int pipe[2];
    ASSERT_EQ(::pipe2(pipe, O_CLOEXEC), 0);
    const pid_t child = fork();
    if (child == 0) rememberUntilKilled(path_, pipe[1]);
    close(pipe[1]);
    double last = 0;
    double said = 0;
    // Some moment of the next one's writing.
    for (int i = 0; i <= death % 5 && read(pipe[0], &said, sizeof said) > 0; ++i) last = said;
    usleep(static_cast<useconds_t>(death * 37 % 1500));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    while (read(pipe[0], &said, sizeof said) > 0) last = said;
    close(pipe[0]);
    ASSERT_GT(last, 0);
    FilmStore store(path_);
    const auto known = store.film(kFilm);
    ASSERT_TRUE(known) << store.takeFault().toStdString();
    // Written, and killed before it could say so.
    ASSERT_TRUE(known->position == last || known->position == last + 1) << known->position;
  }
  EXPECT_EQ(QDir(folder_).entryList({"*damaged*"}), QStringList());
}

}  // namespace tromelo::testing
