#include "playback/FilmKeeper.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/Files.h"
#include "support/ManualClock.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

using namespace std::chrono_literals;

struct FilmKeeperTest : ::testing::Test {
  FilmKeeperTest() { writeFile(path_, "moving pictures"); }

  /// The engine begins with an entry, and has opened the file.
  void open(std::int64_t entry) {
    keeper_.started(entry);
    prepare_({.entry = entry, .path = path_, .duration = 600});
  }
  double remembered() {
    const auto known = memory_.recall(path_, 600, 30s);
    return known && known->record ? known->record->position : 0;
  }

  QTemporaryDir directory_;
  std::string path_ = directory_.filePath("film.mkv").toStdString();
  ManualClock clock_;
  FilmMemory memory_{directory_.filePath("films.sqlite"),
                     [](const QString& told) { ADD_FAILURE() << told.toStdString(); }};
  FilmKeeper keeper_{&memory_, clock_};
  PreloadHook::Prepare prepare_ = keeper_.prepareFile();
};

TEST_F(FilmKeeperTest, RemembersNowAndThenAndWhenItIsTold) {
  open(1);
  keeper_.keep();
  settle();
  EXPECT_EQ(remembered(), 0) << "before it played";
  keeper_.moved(31);
  EXPECT_EQ(remembered(), 0) << "all the time";
  clock_.advance(5s);
  keeper_.moved(36);
  EXPECT_EQ(remembered(), 36);
  keeper_.moved(37);
  keeper_.keep();
  EXPECT_EQ(remembered(), 37);
  keeper_.keepSoon();
  keeper_.moved(300);
  EXPECT_EQ(remembered(), 300) << "after a jump";
}

TEST_F(FilmKeeperTest, TakesNoFilmForTheOneThatPlaysSince) {
  open(1);
  keeper_.started(2);
  settle();
  EXPECT_FALSE(keeper_.film());
  clock_.advance(5s);
  keeper_.moved(36);
  EXPECT_EQ(remembered(), 0);
}

}  // namespace tromelo::testing
