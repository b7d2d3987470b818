#include "films/FilmMemory.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <filesystem>

#include "films/FilmDatabase.h"
#include "support/Files.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

constexpr std::chrono::seconds kLong(30);

struct FilmMemoryTest : ::testing::Test {
  QTemporaryDir directory_;
  QString path_ = directory_.filePath("films.sqlite");
  std::string film_ = directory_.filePath("film.mkv").toStdString();
  std::string subtitle_ = directory_.filePath("film.srt").toStdString();
  QStringList told_;
  std::unique_ptr<FilmMemory> memory_;

  FilmMemoryTest() {
    writeFile(film_, "moving pictures");
    writeFile(subtitle_);
    remake();
  }

  void remake() {
    memory_.reset();
    memory_ =
        std::make_unique<FilmMemory>(path_, [this](const QString& sentence) { told_ << sentence; });
  }
};

TEST_F(FilmMemoryTest, KnowsAFilmThatWasRenamedInTheNextSession) {
  const auto first = memory_->recall(film_, 60, kLong);
  ASSERT_TRUE(first);
  EXPECT_FALSE(first->record);
  const FilmRecord left{.position = 40, .audio = "2", .subtitle = subtitle_};
  memory_->remember(first->film, {.position = 35}, film_);
  memory_->remember(first->film, left, film_);
  remake();

  std::filesystem::rename(film_, film_ + ".moved");
  const auto known = memory_->recall(film_ + ".moved", 60, kLong);
  ASSERT_TRUE(known);
  EXPECT_EQ(known->record, left);
  std::filesystem::remove(subtitle_);
  EXPECT_EQ(memory_->recall(film_ + ".moved", 60, kLong)->record,
            (FilmRecord{.position = 40, .audio = "2"}));
}

TEST_F(FilmMemoryTest, WritesNothingInPrivate) {
  const auto film = memory_->recall(film_, 60, kLong)->film;
  memory_->setPrivate(true);
  memory_->remember(film, {.position = 40}, film_);
  memory_->addBookmark(film, 12, "Storm");
  EXPECT_FALSE(memory_->recall(film_, 60, kLong)->record);
}

TEST_F(FilmMemoryTest, ALockedFileHoldsNobodyUpAndLosesNothing) {
  const auto film = memory_->recall(film_, 60, kLong)->film;
  memory_->remember(film, {.position = 35}, film_);
  ASSERT_TRUE(memory_->recall(film_, 60, kLong)->record);
  {
    FilmDatabase other(path_);
    ASSERT_TRUE(other.run("BEGIN EXCLUSIVE"));
    memory_->remember(film, {.position = 40}, film_);
    EXPECT_FALSE(memory_->recall(film_, 60, std::chrono::milliseconds(50)));
    EXPECT_TRUE(waitFor([this] { return !told_.isEmpty(); }));
  }
  remake();
  EXPECT_EQ(memory_->recall(film_, 60, kLong)->record, FilmRecord{.position = 40});
  EXPECT_EQ(told_.size(), 1);
}

}  // namespace tromelo::testing
