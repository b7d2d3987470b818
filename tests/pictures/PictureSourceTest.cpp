#include "pictures/PictureSource.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>
#include <fstream>

#include "pictures/PictureMessage.h"
#include "support/Clips.h"
#include "support/Files.h"
#include "support/ManualClock.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

constexpr QSize kPictureRoom(16, 16);

/// A source whose maker is a script, which writes a line for each start and each request.
struct PictureSourceTest : ::testing::Test {
  std::unique_ptr<PictureSource> sourceWith(const QString& script) {
    const QString log = QStringLiteral("echo start >>%1\n").arg(log_);
    auto source = std::make_unique<PictureSource>(
        PictureSource::Parts{.maker = {.file = QStringLiteral("/bin/sh"),
                                       .arguments = {QStringLiteral("-c"), log + script}},
                             .folder = folder_,
                             .clock = clock_});
    QObject::connect(source.get(), &PictureSource::arrived, [this](const QImage& picture) {
      EXPECT_EQ(picture.size(), QSize(2, 1));
      ++arrived_;
    });
    source->setFilm(clipPath("sample.mp4"), 100);
    source->setKeepsOnDisk(false);
    return source;
  }

  // A thread may still be writing there.
  ~PictureSourceTest() override {
    EXPECT_TRUE(waitFor([this] { return QDir(folder_).removeRecursively(); }));
  }

  /// Answers each request with a picture of two pixels, when `before` has been done.
  QString answering(const QString& before = {}) const {
    return QStringLiteral(
               "while read -r number seconds rest; do echo \"$seconds\" >>%1\n%2\n"
               "printf '%s 0.000 2 1\\nabcdefgh' \"$number\"; done")
        .arg(log_, before);
  }

  QStringList logged() const {
    std::ifstream file(log_.toStdString());
    QStringList lines;
    for (std::string line; std::getline(file, line);) lines << QString::fromStdString(line);
    return lines;
  }
  bool hasLogged(int lines) const {
    return waitFor([&] { return logged().size() >= lines; });
  }
  int onDisk() const {
    int count = 0;
    QDirIterator each(folder_, {QStringLiteral("*.jpg")}, QDir::Files,
                      QDirIterator::Subdirectories);
    for (; each.hasNext(); ++count) each.next();
    return count;
  }

  const QTemporaryDir home_;
  const QString log_ = home_.filePath(QStringLiteral("log"));
  const QString folder_ = home_.filePath(QStringLiteral("pictures"));
  ManualClock clock_;
  int arrived_ = 0;
};

TEST_F(PictureSourceTest, MakesTheNewestOfManyAndEachOnce) {
  const QString go = home_.filePath(QStringLiteral("go"));
  const auto source =
      sourceWith(answering(QStringLiteral("until [ -e %1 ]; do sleep 0.01; done").arg(go)));
  for (const double moment : {10.0, 20.0, 30.0, 40.0}) source->ask(moment, kPictureRoom);
  ASSERT_TRUE(hasLogged(2));
  writeFile(go.toStdString());
  ASSERT_TRUE(waitFor([&] { return arrived_ == 2; }));
  source->ask(10, kPictureRoom);
  source->ask(40.01, kPictureRoom);
  EXPECT_EQ(arrived_, 4) << "from memory, at once";
  EXPECT_EQ(logged(), (QStringList{"start", "10.000", "40.000"}));
}

TEST_F(PictureSourceTest, KeepsPicturesOnTheDiskForTheNextTime) {
  for (const bool keeps : {false, true}) {
    SCOPED_TRACE(keeps);
    const auto source = sourceWith(answering());
    source->setKeepsOnDisk(keeps);
    // The first ones may come before the film's content is known.
    for (int i = 1; i < 40 && (onDisk() == 0 || !keeps); ++i) {
      const int before = arrived_;
      source->ask(2 * i, kPictureRoom);
      ASSERT_TRUE(waitFor([&] { return arrived_ > before; }));
    }
    if (keeps)
      EXPECT_TRUE(waitFor([&] { return onDisk() > 0; }));
    else
      EXPECT_EQ(onDisk(), 0);
  }
}

TEST_F(PictureSourceTest, EndsAnIdleProcessAndStartsAnotherWhenItIsNeeded) {
  const auto source = sourceWith(answering() + QStringLiteral("\necho end >>") + log_);
  source->ask(10, kPictureRoom);
  ASSERT_TRUE(waitFor([&] { return arrived_ == 1; }));
  clock_.advance(PictureProcess::kRest);
  source->ask(20, kPictureRoom);
  ASSERT_TRUE(waitFor([&] { return arrived_ == 2; }));
  EXPECT_EQ(logged().count("start"), 2);
  source->setFilm({}, 0);
  source->setFilm(clipPath("sample.mp4"), 100);
  source->ask(20, kPictureRoom);
  ASSERT_TRUE(waitFor([&] { return arrived_ == 3; }));
  EXPECT_EQ(logged().count("start"), 3) << "the film was closed meanwhile";
}

TEST_F(PictureSourceTest, AsksForAFilmThatFailsTwiceNoMore) {
  const char* const scripts[] = {
      "exit 1",
      "read -r line; kill -9 $$",
      "exec sleep 1000",
      "read -r line; exec yes",
      "read -r line; printf '1 0.000 9999 9999\\n'; exec sleep 1000",
      "read -r line; printf '77 0.000 0 0\\n'; exec sleep 1000",
      "read -r line; printf 'nan nan -1 -1\\n'; exec sleep 1000",
  };
  for (const char* script : scripts) {
    SCOPED_TRACE(script);
    QFile::remove(log_);
    const auto source = sourceWith(QString::fromLatin1(script));
    double moment = 0;
    EXPECT_TRUE(waitFor([&] {
      source->ask(moment += 1, kPictureRoom);
      // Whatever it is by now that takes so long.
      if (logged().size() > 0) clock_.advance(std::chrono::seconds(1));
      return source->hasGivenUp();
    }));
    EXPECT_LE(logged().size(), 2);
    source->setFilm(clipPath("sample.mkv"), 100);
    EXPECT_FALSE(source->hasGivenUp());
    source->setFilm(clipPath("sample.mp4"), 100);
    EXPECT_TRUE(source->hasGivenUp());
  }
  EXPECT_EQ(arrived_, 0);
}

TEST_F(PictureSourceTest, DoesWithoutAProgram) {
  PictureSource source({.maker = {.file = QStringLiteral("/no/such/program"), .arguments = {}},
                        .folder = folder_,
                        .clock = clock_});
  source.setFilm(clipPath("sample.mp4"), 100);
  EXPECT_TRUE(waitFor([&] {
    source.ask(10, kPictureRoom);
    return source.hasGivenUp();
  }));
}

TEST_F(PictureSourceTest, GetsPicturesFromTheProgramItself) {
  PictureSource source({.maker = {.file = QStringLiteral(TROMELO_PROGRAM),
                                  .arguments = {QStringLiteral("--pictures")}},
                        .folder = folder_,
                        .clock = clock_});
  QImage picture;
  QObject::connect(&source, &PictureSource::arrived,
                   [&picture](const QImage& arrived) { picture = arrived; });
  source.setFilm(clipPath("sample.mp4"), 10);
  source.setKeepsOnDisk(false);
  source.ask(5, {128, 128});
  EXPECT_TRUE(waitFor([&] { return !picture.isNull(); }));
  EXPECT_EQ(picture.size(), QSize(128, 72));
  EXPECT_GT(
      qGreen(picture.pixel(64, 36)) + qRed(picture.pixel(64, 36)) + qBlue(picture.pixel(64, 36)),
      0);
}

}  // namespace tromelo::testing
