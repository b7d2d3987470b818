#include "pictures/BlackBars.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QRandomGenerator>

#include "pictures/BarsFinder.h"
#include "platform/Clock.h"
#include "support/Clips.h"
#include "support/Table.h"
#include "support/WaitFor.h"

namespace tromelo::testing {

constexpr QRect kWhole(0, 0, 640, 360);

bool isWithin(const QRect& found, const QRect& expected) {
  const QMargins two(2, 2, 2, 2);
  return (expected + two).contains(found) && (found + two).contains(expected);
}

/// A part of black, which is never quite black, with a picture in it.
QImage scene(const QRect& part, QRgb color = qRgb(90, 120, 60)) {
  QImage image(kWhole.size(), QImage::Format_RGB32);
  QRandomGenerator chance(1);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const int noise = static_cast<int>(chance.bounded(chance.bounded(5000) == 0 ? 120 : 20));
      image.setPixel(x, y, qRgb(noise, noise, noise));
    }
  QPainter(&image).fillRect(part, QColor(color));
  return image;
}

TEST(BlackBarsTest, FindsThePictureInTwelveShapes) {
  for (const double ratio :
       {1.0, 1.19, 1.33, 1.375, 1.66, 1.85, 2.0, 2.2, 2.35, 2.39, 2.55, 2.76}) {
    QSize size(kWhole.width(), qRound(kWhole.width() / ratio));
    if (size.height() > kWhole.height()) size = {qRound(kWhole.height() * ratio), kWhole.height()};
    QRect part(QPoint(), size);
    part.moveCenter(kWhole.center());
    EXPECT_TRUE(isWithin(withoutBars(scene(part)), part)) << ratio;
  }
  EXPECT_FALSE(withoutBars(scene({})).isValid()) << "black";
}

TEST(BlackBarsTest, CutsOnlyWhereTheScenesAgree) {
  const QRect wide(0, 46, 640, 268);
  const QRect dark(100, 80, 300, 200);
  const QRect other(50, 90, 400, 210);
  const QRect none;
  EXPECT_EQ(std::get<QRect>(withoutBars({wide, none, wide, dark, wide, wide, wide}, kWhole)), wide);
  for (const auto& [scenes, why] : Table<QList<QRect>, NoBars>{
           {{none, none, dark}, NoBars::tooDark},
           {{dark, other, wide}, NoBars::tooDark},
           {{kWhole, dark, kWhole, other}, NoBars::none},
           {{wide, kWhole, wide, kWhole, wide}, NoBars::vary},
       })
    EXPECT_EQ(std::get<NoBars>(withoutBars(scenes, kWhole)), why);
}

TEST(BlackBarsTest, LooksAtARealFilm) {
  SystemClock clock;
  BarsFinder finder({TROMELO_PROGRAM, {"--pictures"}}, clock);
  for (const auto& [clip, size, expected] : Table<const char*, QSize, QRect>{
           {"letterbox.mkv", {320, 180}, {0, 23, 320, 134}}, {"tracks.mkv", {320, 180}, {}}}) {
    std::optional<std::variant<QRect, NoBars>> found;
    finder.find(clipPath(clip), size, 8, [&](const auto& answer) { found = answer; });
    ASSERT_TRUE(waitFor([&] { return found.has_value(); }));
    if (expected.isNull())
      EXPECT_EQ(std::get<NoBars>(*found), NoBars::none);
    else
      EXPECT_TRUE(isWithin(std::get<QRect>(*found), expected));
  }
}

}  // namespace tromelo::testing
