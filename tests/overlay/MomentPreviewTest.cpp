#include <QTemporaryDir>

#include "OverlayTest.h"
#include "pictures/PictureSource.h"

namespace tromelo::testing {

/// The slider of a film whose pictures a script makes, as large as they may be.
struct MomentPreviewTest : OverlayTest {
  MomentPreviewTest() {
    overlay_ = std::make_unique<QuickPlayerOverlay>(
        engine_, layer_, playback_, player(), reducedMotion_, clock_, [this] { return pointer_; },
        &pictures_);
    overlay_->setChromeVisible(true, false);
    load(100);
    reportChapters({0, 50});
    layOut();
  }
  ~MomentPreviewTest() override { overlay_.reset(); }

  void setFilm() { pictures_.setFilm("/film.mkv", 100); }
  QPointF onSlider(double part) {
    const QRectF slider = frame("seekSlider");
    return {slider.left() + 8 + part * (slider.width() - 16), slider.center().y()};
  }
  bool pointAt(double part) {
    move(onSlider(part));
    return waitFor([this] {
      layOut();
      return isShown("momentPreview");
    });
  }

  const QTemporaryDir home_;
  PictureSource pictures_{
      {.maker = {.file = "/bin/sh",
                 .arguments = {"-c",
                               "while read -r number moment width height film; do "
                               "echo $number $moment $width $height; "
                               "head -c $((4 * width * height)) /dev/zero; done"}},
       .folder = home_.path(),
       .clock = clock_}};
};

TEST_F(MomentPreviewTest, ShowsTheMomentUnderThePointerOnceThereIsAPicture) {
  move(onSlider(0.25));
  settle();
  EXPECT_FALSE(isShown("momentPreview")) << "this film has no pictures";
  setFilm();
  EXPECT_FALSE(isShown("momentPreview"));
  ASSERT_TRUE(pointAt(0.2501));
  EXPECT_EQ(text("momentTime"), "0:25");
  EXPECT_EQ(text("momentChapter"), "At 0");
  ASSERT_TRUE(pointAt(0.75));
  EXPECT_EQ(text("momentTime"), "1:15");
  EXPECT_EQ(text("momentChapter"), "At 50");
  EXPECT_LE(std::abs(frame("momentPreview").center().x() - onSlider(0.75).x()), 1);

  press(onSlider(0.5));
  drag(onSlider(0.6) + QPointF(0, 200));
  EXPECT_TRUE(isShown("momentPreview"));
  EXPECT_EQ(text("momentTime"), "1:00") << "of the knob";
  release(onSlider(0.6) + QPointF(0, 200));
  move({400, 20});
  EXPECT_FALSE(isShown("momentPreview"));
  ASSERT_TRUE(pointAt(0.75));
  player().chrome().toggle(PlayerPanel::queue);
  EXPECT_FALSE(isShown("momentPreview")) << "it would be behind the panel";
  player().chrome().close(PlayerPanel::queue);
  ASSERT_TRUE(pointAt(0.75));
  pictures_.setFilm({}, 0);
  EXPECT_FALSE(isShown("momentPreview")) << "of the film before";
}

TEST_F(MomentPreviewTest, StaysInTheWindowAboveTheBar) {
  setFilm();
  for (const QSizeF size : {QSizeF(520, 300), QSizeF(799, 451), QSizeF(1920, 1080)}) {
    layer_.setSize(size);
    settle();
    layOut();
    for (const double part : {0.0, 0.5, 1.0}) {
      ASSERT_TRUE(pointAt(part));
      const QRectF preview = frame("momentPreview");
      SCOPED_TRACE(::testing::Message() << size.width() << " at " << part);
      EXPECT_TRUE(QRectF(QPointF(), size).contains(preview));
      EXPECT_LT(preview.bottom(), frame("playerControlBar").top());
      EXPECT_TRUE(preview.contains(frame("momentPicture")));
      EXPECT_TRUE(preview.contains(frame("momentChapter")));
    }
  }
}

}  // namespace tromelo::testing
