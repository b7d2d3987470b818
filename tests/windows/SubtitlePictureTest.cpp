#include "settings/SubtitlePicture.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/Table.h"

namespace tromelo::testing {

constexpr QSizeF kSize(480, 110);

/// Of the pixels that differ from those of a picture without text.
QRect changed(const QImage& picture) {
  PlayerPreferences unseen;
  unseen.subtitleColor = {1, 1, 1, 0};
  unseen.subtitleOutlineColor = {0, 0, 0, 0};
  const QImage plain = subtitlePicture(kSize, picture.devicePixelRatio(), unseen);
  QRect found;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixel(x, y) != plain.pixel(x, y)) found |= QRect(x, y, 1, 1);
  return found;
}

int darkest(const QImage& picture, QRect within) {
  int least = 255;
  for (int y = within.top(); y <= within.bottom(); ++y)
    for (int x = within.left(); x <= within.right(); ++x)
      least = std::min(least, picture.pixelColor(x, y).value());
  return least;
}

TEST(SubtitlePictureTest, DrawsEachStyleAtTheBottom) {
  // How dark it is, at most, somewhere.
  for (const auto& [border, edge, dark] :
       Table<SubtitleBorderStyle, RgbaColor, int>{{SubtitleBorderStyle::outline, {0, 0, 0}, 40},
                                                  {SubtitleBorderStyle::outline, {1, 1, 1}, 160},
                                                  {SubtitleBorderStyle::shadow, {1, 1, 1}, 80},
                                                  {SubtitleBorderStyle::box, {1, 1, 1}, 60}})
    for (const double scale : {1.0, 2.0}) {
      SCOPED_TRACE(dark);
      PlayerPreferences style{.subtitleFont = "Inter", .subtitleOutlineColor = edge};
      style.subtitleBorderStyle = border;
      const QImage picture = subtitlePicture(kSize, scale, style);
      ASSERT_EQ(picture.size(), (kSize * scale).toSize());
      const QRect text = changed(picture);
      EXPECT_LE(darkest(picture, text), dark);
      EXPECT_NEAR(text.center().x() / scale, kSize.width() / 2, 4);
      EXPECT_TRUE(
          QRectF(0, 60, 480, 41).contains(QRectF(text.topLeft() / scale, text.size() / scale)));
    }
}

TEST(SubtitlePictureTest, IsAsLargeAndAsBoldAsSubtitles) {
  PlayerPreferences style;
  EXPECT_DOUBLE_EQ(subtitleSampleFont(style).pointSizeF(), 18.48);
  const int width = changed(subtitlePicture(kSize, 1, style)).width();
  style.subtitleBold = true;
  EXPECT_GT(changed(subtitlePicture(kSize, 1, style)).width(), width);
  style.subtitleSize = 24;
  EXPECT_LT(changed(subtitlePicture(kSize, 1, style)).width(), width);
}

}  // namespace tromelo::testing
