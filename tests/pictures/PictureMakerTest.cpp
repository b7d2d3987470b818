#include "pictures/PictureMaker.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "engine/MpvClientApi.h"
#include "pictures/StandardRange.h"
#include "support/Clips.h"

namespace tromelo::testing {

constexpr QSize kRoom(180, 180);

struct PictureMakerTest : ::testing::Test {
  std::optional<FilmPicture> make(const std::string& clip, double seconds = 0.5) {
    return maker_.make(clipPath(clip), kRoom, seconds);
  }

  PictureMaker maker_{MpvClientApi::libmpv()};
};

/// The number that a frame of the numbered clip shows.
int numberOf(const QImage& picture) {
  int number = 0;
  for (int bit = 0; bit < 9; ++bit) {
    const int x = picture.width() * (2 * bit + 1) / 18;
    if (qGray(picture.pixel(x, picture.height() / 2)) > 127) number |= 1 << bit;
  }
  return number;
}

double brightnessOf(const QImage& picture) {
  double sum = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) sum += qGray(picture.pixel(x, y));
  return sum / (picture.width() * picture.height());
}

TEST_F(PictureMakerTest, ShowsTheNearestKeyFrameOfEachMoment) {
  // Back and forth, to the end, and what is known from before.
  for (const double moment : {7.3, 0.0, 0.9, 1.1, 12.6, 11.4, 19.9, 3.0, 2.9, 20.0, 17.2, 12.6}) {
    SCOPED_TRACE(moment);
    const auto picture = make("numbered.mkv", moment);
    ASSERT_TRUE(picture);
    const double shown = numberOf(picture->image) / 25.0;
    EXPECT_NEAR(shown, picture->seconds, 0.01) << "it says when it is";
    const double most = moment > 18 ? 2 : 1;  // the last key frame has none behind it
    EXPECT_LE(std::abs(shown - moment), most);
  }
}

TEST_F(PictureMakerTest, HasTheShapeOfTheFilm) {
  struct Row {
    const char* clip;
    QSize size;
  };
  for (const auto& [clip, size] :
       {Row{"short-wide.mp4", {180, 101}}, Row{"turned.mp4", {101, 180}},
        Row{"wide-pixels.mkv", {180, 90}}, Row{"short-square.mp4", {180, 180}}}) {
    SCOPED_TRACE(clip);
    const auto picture = make(clip);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->image.size(), size);
  }
  const auto small = maker_.make(clipPath("short-wide.mp4"), {4000, 4000}, 0);
  ASSERT_TRUE(small);
  EXPECT_EQ(small->image.size(), QSize(320, 180)) << "no larger than the film";
}

TEST_F(PictureMakerTest, BringsHighRangeToWhatAScreenShows) {
  struct Row {
    const char* transfer;
    int coded;
    int shown;
  };
  // White, which both have far below their highest value, is nearly as bright as the screen.
  for (const auto& [transfer, coded, shown] :
       {Row{"pq", 0, 0}, Row{"pq", 148, 244}, Row{"pq", 255, 255}, Row{"pq", 90, 87},
        Row{"hlg", 0, 0}, Row{"hlg", 191, 244}, Row{"hlg", 255, 255}, Row{"bt.1886", 148, 148}}) {
    SCOPED_TRACE(::testing::Message() << transfer << ' ' << coded);
    QImage picture(1, 1, QImage::Format_RGB32);
    picture.setPixel(0, 0, qRgb(coded, coded, coded));
    bringToStandardRange(picture, transfer);
    EXPECT_NEAR(qGreen(picture.pixel(0, 0)), shown, 3);
  }
  // The same clip three times, so that what its values stand for makes the difference.
  const auto plain = make("bt709.mkv");
  const auto pq = make("hdr10.mkv");
  const auto hlg = make("hlg.mkv");
  ASSERT_TRUE(plain && pq && hlg);
  EXPECT_GT(std::abs(brightnessOf(pq->image) - brightnessOf(plain->image)), 10);
  EXPECT_GT(std::abs(brightnessOf(hlg->image) - brightnessOf(plain->image)), 5);
}

TEST_F(PictureMakerTest, HasNoneOfWhatIsNoFilmAndGoesOnWithTheNext) {
  const QTemporaryDir home;
  const std::string pipe = home.filePath(QStringLiteral("pipe.mkv")).toStdString();
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  for (const std::string& path :
       {clipPath("audio.m4a"), clipPath("covered.m4a"), clipPath("text.mkv"), clipPath("empty.mkv"),
        clipPath("headless.mp4"), clipPath("list.m3u"), clipPath("missing.mkv"), pipe,
        home.path().toStdString(), std::string("edl://") + clipPath("sample.mp4"), std::string()}) {
    SCOPED_TRACE(path);
    EXPECT_FALSE(maker_.make(path, kRoom, 0.5));
    EXPECT_TRUE(make("sample.mkv"));
  }
  EXPECT_FALSE(maker_.make(clipPath("sample.mkv"), {}, 0));
  EXPECT_FALSE(make("sample.mkv", NAN));
  EXPECT_TRUE(make("sample.mkv", 1e12));
  EXPECT_TRUE(make("sample.mkv", -3));
}

}  // namespace tromelo::testing
